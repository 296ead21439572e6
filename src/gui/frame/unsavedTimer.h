#pragma once

#include "app/app.h"

#include <QTimer>

namespace gui {

// Sees to it that unsaved work is kept for recovery when it is time to; see storage/recoveryCopies.h for when
// that is.
class UnsavedTimer : public QObject {
    Q_OBJECT

public:
    explicit UnsavedTimer(app::App& app, QObject* parent = nullptr);

    // Behind each event.
    void refresh();

signals:
    void tended(); // perhaps it could not be kept

private:
    app::App& app_;
    QTimer timer_;
};

} // namespace gui
