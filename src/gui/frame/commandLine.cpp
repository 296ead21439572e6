#include "gui/frame/commandLine.h"

#include <QDir>
#include <QFileInfo>

namespace gui {

namespace {

constexpr int smallestSide = 200, largestSide = 10000; // pixels
constexpr double smallestScale = 0.5, largestScale = 8;

void declareOptions(QCommandLineParser& parser) {
    parser.addOptions({
        {{QStringLiteral("h"), QStringLiteral("help")}, QString()},
        {{QStringLiteral("v"), QStringLiteral("version")}, QString()},
        {QStringLiteral("new"), QString()},
        {QStringLiteral("last"), QString()},
        {QStringLiteral("picture"), QString(), QStringLiteral("PNG")},
        {QStringLiteral("size"), QString(), QStringLiteral("WxH")},
        {QStringLiteral("scale"), QString(), QStringLiteral("N")},
        {QStringLiteral("dark"), QString()},
    });
}

QSize sizeOf(const QString& text, QString& error) {
    const QStringList sides = text.split(QLatin1Char('x'));
    bool isWidth = false, isHeight = false;
    const QSize size(sides.value(0).toInt(&isWidth), sides.value(1).toInt(&isHeight));
    const auto fits = [](int side) { return side >= smallestSide && side <= largestSide; };
    if (sides.size() != 2 || !isWidth || !isHeight || !fits(size.width()) || !fits(size.height()))
        error = QStringLiteral("--size takes a width and a height in pixels, such as 1100x720");
    return size;
}

double scaleOf(const QString& text, QString& error) {
    bool isNumber = false;
    const double scale = text.toDouble(&isNumber);
    if (isNumber && scale >= smallestScale && scale <= largestScale) return scale;
    error = QStringLiteral("--scale takes a number from 0.5 to 8");
    return 1;
}

// Desktops and scripts pass a path with quotes of its own now and then.
QString absolutePath(QString path) {
    if (path.size() > 1 && path.startsWith(QLatin1Char('"')) && path.endsWith(QLatin1Char('"')))
        path = path.mid(1, path.size() - 2);
    return path.isEmpty() ? QString() : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

CommandLine parseCommandLine(int argc, char* argv[]) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
    QCommandLineParser parser;
    declareOptions(parser);
    CommandLine line;
    if (!parser.parse(arguments)) line.error = parser.errorText();
    if (parser.positionalArguments().size() > 1) line.error = QStringLiteral("only one file can be opened");
    line.help = parser.isSet(QStringLiteral("help"));
    line.version = parser.isSet(QStringLiteral("version"));
    line.file = absolutePath(parser.positionalArguments().value(0));
    line.isNew = parser.isSet(QStringLiteral("new"));
    line.isLast = parser.isSet(QStringLiteral("last"));
    line.picture = parser.value(QStringLiteral("picture"));
    line.dark = parser.isSet(QStringLiteral("dark"));
    if (parser.isSet(QStringLiteral("size")))
        line.size = sizeOf(parser.value(QStringLiteral("size")), line.error);
    if (parser.isSet(QStringLiteral("scale")))
        line.scale = scaleOf(parser.value(QStringLiteral("scale")), line.error);
    if ((line.isNew || line.isLast) &&
        (line.isNew == line.isLast || !line.file.isEmpty() || !line.picture.isEmpty()))
        line.error =
            QStringLiteral("--new and --last take no file, and go neither together nor with --picture");
    return line;
}

QString versionText() {
    return QStringLiteral("Ferrowick " FERROWICK_VERSION "\n");
}

QString helpText(const QString& program) {
    return QStringLiteral(
               "Usage: %1 [options] [FILE]\n"
               "Opens the database FILE (.fwk), or an empty window.\n"
               "\n"
               "Options:\n"
               "  -h, --help         Shows this text.\n"
               "  -v, --version      Shows the version.\n"
               "  --new              Begins with a new database, as File > New.\n"
               "  --last             Opens the database that was used last.\n"
               "  --dark             Uses dark colours.\n"
               "  --picture PNG      Saves a picture of the window with FILE instead of showing it.\n"
               "                     It needs no display and leaves your settings alone.\n"
               "  --size WxH         The size of that picture, 1100x720 if not told.\n"
               "  --scale N          Its scale: 2 for a picture with twice as many pixels each way.\n")
        .arg(program);
}

} // namespace gui
