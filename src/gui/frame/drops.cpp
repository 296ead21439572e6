#include "gui/frame/drops.h"

#include "core/translate.h"
#include "gui/widgets/qtText.h"
#include "layout/images.h"
#include "qtprint/storablePicture.h"
#include "shell/menuCommands.h"
#include "shell/tableCommands.h"

#include <QFileInfo>
#include <QImage>
#include <QMimeData>
#include <QUrl>

namespace gui {

namespace {

// The one file that is dragged; empty for several, and for what lies elsewhere.
QString draggedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 && urls.constFirst().isLocalFile() ? urls.constFirst().toLocalFile() : QString();
}

bool isDatabase(const QString& path) {
    return path.endsWith(QLatin1String(".fwk"), Qt::CaseInsensitive);
}

bool isPicture(const QMimeData& data) {
    const QString file = draggedFile(data);
    return file.isEmpty() ? data.hasImage() : qtprint::isPictureName(file);
}

// What becomes of a picture that was dropped on a box; name is that of its file.
void takeDropped(app::App& app, int box, const std::optional<qtprint::StorablePicture>& picture,
                 const std::string& name) {
    if (!picture) {
        app::warn(app, name.empty()
                           ? core::tr("The picture cannot be read, or is too large.")
                           : core::fill(core::tr("The picture %1 cannot be read, or is too large."), {name}));
        return;
    }
    const auto stored = layout::takePicture(app, box, fromQt(picture->name), picture->bytes.toStdString());
    if (!stored || !picture->isConverted) return;
    std::string told = core::fill(core::tr("The picture is kept as the JPEG file %1."), {*stored});
    if (picture->wasTransparent)
        told.append(" ").append(core::tr("What is transparent in it has become white."));
    app::inform(app, told);
}

} // namespace

Drops::Drops(app::App& app, EventBoundary& events, LayoutPageView& page, QWidget& window)
    : QObject(&window), app_(app), events_(events), page_(page), window_(window) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

std::optional<int> Drops::boxFor(const QDropEvent& event) const {
    if (!isPicture(*event.mimeData()) || !page_.isVisible()) return std::nullopt;
    const std::optional<int> box = page_.pictureBoxAt(window_.mapToGlobal(event.position().toPoint()));
    return box && layout::takesPicture(app_, *box) ? box : std::nullopt;
}

bool Drops::isTaken(const QDropEvent& event) const {
    const QString file = draggedFile(*event.mimeData());
    return isDatabase(file) || shell::isTableFile(fromQt(file)) || boxFor(event).has_value();
}

bool Drops::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter: { // a picture may still come to its box
        auto& enter = *static_cast<QDropEvent*>(event);
        if (isTaken(enter) || (isPicture(*enter.mimeData()) && page_.isVisible()))
            enter.acceptProposedAction();
        return true;
    }
    case QEvent::DragMove: {
        auto& move = *static_cast<QDropEvent*>(event);
        isTaken(move) ? move.acceptProposedAction() : move.ignore();
        return true;
    }
    case QEvent::Drop:
        drop(*static_cast<QDropEvent*>(event));
        return true;
    default:
        return false;
    }
}

// The program that something comes from waits for the end of the drop, and a form or a message takes its
// time.
void Drops::drop(QDropEvent& event) {
    if (!isTaken(event)) return;
    event.acceptProposedAction();
    const QString file = draggedFile(*event.mimeData());
    if (isDatabase(file)) {
        events_.run([&] { shell::openNamedFile(app_, fromQt(file)); });
    } else if (const std::optional<int> box = boxFor(event)) {
        dropPicture(*event.mimeData(), *box);
    } else {
        QMetaObject::invokeMethod(
            this, [this, file] { events_.run([&] { shell::importDropped(app_, fromQt(file)); }); },
            Qt::QueuedConnection);
    }
}

void Drops::dropPicture(const QMimeData& data, int box) {
    const QString file = draggedFile(data);
    const QImage image = file.isEmpty() ? qvariant_cast<QImage>(data.imageData()) : QImage();
    const auto take = [this, box, file, image] {
        const auto picture = file.isEmpty() ? qtprint::storablePicture(image, QStringLiteral("picture"))
                                            : qtprint::storablePicture(file);
        takeDropped(app_, box, picture, fromQt(QFileInfo(file).fileName()));
    };
    QMetaObject::invokeMethod(
        this, [this, take] { events_.run(take); }, Qt::QueuedConnection);
}

} // namespace gui

#include "moc_drops.cpp"
