#pragma once

#include "drawing/recordedPage.h"
#include "labels/labelStocks.h"
#include "qtprint/pagePainter.h"

#include <QWidget>

namespace gui {

// One label, as large as there is room.
class LabelPreview : public QWidget {
    Q_OBJECT

public:
    explicit LabelPreview(const drawing::RecordedPage& page, QWidget* parent = nullptr);
    void show(labels::LabelShape shape);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const drawing::RecordedPage& page_;
    labels::LabelShape shape_ = labels::LabelShape::Rectangle;
    qtprint::PagePainter painter_;
};

} // namespace gui
