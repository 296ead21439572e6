#pragma once

#include "drawing/recordedPage.h"
#include "print/labelStocks.h"
#include "qtprint/pagePainter.h"

#include <QWidget>

namespace gui {

// One label, as large as there is room.
class LabelPreview : public QWidget {
    Q_OBJECT

public:
    explicit LabelPreview(const drawing::RecordedPage& page, QWidget* parent = nullptr);
    void show(print::LabelShape shape);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const drawing::RecordedPage& page_;
    print::LabelShape shape_ = print::LabelShape::Rectangle;
    qtprint::PagePainter painter_;
};

} // namespace gui
