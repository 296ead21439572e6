#include "gui/widgets/icon.h"

#include "gui/widgets/palette.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <array>
#include <utility>

// The resources lie in a static library, which the linker would leave them out of. The macro has to
// stand outside of a namespace.
static void initResources() {
    Q_INIT_RESOURCE(icons);
    Q_INIT_RESOURCE(resources);
}

namespace gui {

namespace {

// The colours that the family is drawn in. On a dark ground the accents are too deep to be seen.
constexpr auto inkColour = "#202124";
constexpr std::array<std::pair<const char*, const char*>, 3> darkAccents = {
    {{"#1a73e8", "#8ab4f8"}, {"#188038", "#81c995"}, {"#d93025", "#f28b82"}}};

constexpr qreal disabledOpacity = 0.4;

class FamilyIconEngine final : public QIconEngine {
public:
    explicit FamilyIconEngine(QString name) : name_(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal scale = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * scale, mode, state));
    }

    // The size is in pixels of the device.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QGuiApplication::palette();
        // A highlighted row has a colour of its own that the accents would be lost on.
        const bool highlighted = mode == QIcon::Selected;
        const QColor ink =
            palette.color(QPalette::Active, highlighted ? QPalette::HighlightedText : QPalette::WindowText);
        const bool disabled = mode == QIcon::Disabled;
        const QString key = QStringLiteral("ferrowick/%1/%2/%3x%4/%5%6")
                                .arg(name_, ink.name())
                                .arg(size.width())
                                .arg(size.height())
                                .arg(disabled)
                                .arg(highlighted);
        QPixmap drawn;
        if (QPixmapCache::find(key, &drawn)) return drawn;
        drawn = QPixmap(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        if (disabled) painter.setOpacity(disabledOpacity);
        QSvgRenderer(source(ink, isDark(palette), highlighted)).render(&painter);
        painter.end();
        QPixmapCache::insert(key, drawn);
        return drawn;
    }

    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override { return size; }
    QIconEngine* clone() const override { return new FamilyIconEngine(name_); }

private:
    QByteArray source(const QColor& ink, bool dark, bool inkAlone) const {
        QFile file(QStringLiteral(":/icons/%1.svg").arg(name_));
        if (!file.open(QIODevice::ReadOnly)) return {};
        QByteArray svg = file.readAll();
        svg.replace(inkColour, ink.name().toLatin1());
        for (const auto& [deep, light] : darkAccents)
            if (dark || inkAlone) svg.replace(deep, inkAlone ? ink.name().toLatin1() : QByteArray(light));
        return svg;
    }

    QString name_;
};

} // namespace

QIcon familyIcon(const QString& name) {
    initResources();
    if (!QFile::exists(QStringLiteral(":/icons/%1.svg").arg(name))) return {};
    return QIcon(new FamilyIconEngine(name));
}

QIcon programIcon() {
    initResources();
    return QIcon(QStringLiteral(":/ferrowick.svg"));
}

} // namespace gui
