#include "gui/machine/recentList.h"

#include "core/runTimeError.h"
#include "file/atomicFile.h"
#include "gui/widgets/qtText.h"
#include "shell/recentlyUsed.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QStringDecoder>
#include <QTimer>
#include <QUrl>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cerrno>
#include <iostream>
#include <sys/stat.h>

namespace gui {

namespace {

constexpr std::size_t mostBytes = std::size_t{8} * 1024 * 1024;
constexpr QLatin1String bookmarkPrefix("bookmark"), mimePrefix("mime");
constexpr QLatin1String bookmarkSpace("http://www.freedesktop.org/standards/desktop-bookmarks");
constexpr QLatin1String mimeSpace("http://www.freedesktop.org/standards/shared-mime-info");
constexpr QLatin1String application("Ferrowick");
constexpr QLatin1String
    emptyList("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\">\n</xbel>\n");

struct Damaged {};

// Copies a list piece by piece, and changes the file's bookmark on the way or adds it at the end. Names stay
// as they are written, with their prefixes, since other readers of the list look for these.
class ListCopy {
public:
    ListCopy(const QString& list, const QString& file, const QDateTime& now)
        : in_(list), out_(&copied_), href_(QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded())),
          now_(now.toUTC().toString(Qt::ISODateWithMs)) {
        in_.setNamespaceProcessing(false);
    }

    QString copy() {
        while (!in_.atEnd()) copyPiece(in_.readNext());
        if (in_.hasError() || !hasRoot_) throw Damaged();
        return copied_;
    }

private:
    void copyPiece(QXmlStreamReader::TokenType piece) {
        switch (piece) {
        case QXmlStreamReader::StartDocument:
            out_.writeStartDocument();
            break;
        case QXmlStreamReader::DTD:
            out_.writeDTD(in_.text().toString());
            break;
        case QXmlStreamReader::StartElement:
            start();
            break;
        case QXmlStreamReader::EndElement:
            end();
            break;
        case QXmlStreamReader::Characters:
            in_.isCDATA() ? out_.writeCDATA(in_.text().toString())
                          : out_.writeCharacters(in_.text().toString());
            break;
        case QXmlStreamReader::Comment:
            out_.writeComment(in_.text().toString());
            break;
        case QXmlStreamReader::ProcessingInstruction:
            out_.writeProcessingInstruction(in_.processingInstructionTarget().toString(),
                                            in_.processingInstructionData().toString());
            break;
        case QXmlStreamReader::EntityReference: // one that nobody has declared
            throw Damaged();
        default:
            break;
        }
    }

    void start() {
        const QString name = in_.qualifiedName().toString();
        QXmlStreamAttributes attributes = in_.attributes();
        if (depth_ == 0) {
            if (name != u"xbel") throw Damaged();
            hasRoot_ = true;
            declare(attributes, bookmarkPrefix, bookmarkSpace);
            declare(attributes, mimePrefix, mimeSpace);
        } else if (depth_ == 1 && name == u"bookmark" && attributes.value(QLatin1String("href")) == href_) {
            isOurs_ = isThere_ = true;
            set(attributes, u"modified", now_);
            set(attributes, u"visited", now_);
        } else if (isOurs_ && name == u"bookmark:application" &&
                   attributes.value(QLatin1String("name")) == application) {
            isCounted_ = true;
            set(attributes, u"modified", now_);
            set(attributes, u"count", QString::number(attributes.value(QLatin1String("count")).toUInt() + 1));
        }
        ++depth_;
        out_.writeStartElement(name);
        for (const QXmlStreamAttribute& each : attributes)
            out_.writeAttribute(each.qualifiedName().toString(), each.value().toString());
    }

    void end() {
        --depth_;
        if (isOurs_ && !isCounted_ && in_.qualifiedName() == u"bookmark:applications") writeApplication();
        if (depth_ == 1) isOurs_ = false;
        if (depth_ == 0 && !isThere_) writeBookmark();
        out_.writeEndElement();
    }

    static void set(QXmlStreamAttributes& attributes, QStringView name, const QString& value) {
        attributes.removeIf([name](const QXmlStreamAttribute& each) { return each.qualifiedName() == name; });
        attributes.append(name.toString(), value);
    }

    static void declare(QXmlStreamAttributes& attributes, QLatin1String prefix, QLatin1String space) {
        const QString name = QLatin1String("xmlns:") + prefix;
        for (const QXmlStreamAttribute& each : attributes)
            if (each.qualifiedName() == name) return;
        attributes.append(name, space);
    }

    void writeBookmark() {
        out_.writeCharacters(QStringLiteral("  "));
        out_.writeStartElement(QStringLiteral("bookmark"));
        out_.writeAttribute(QStringLiteral("href"), href_);
        for (const char* date : {"added", "modified", "visited"})
            out_.writeAttribute(QLatin1String(date), now_);
        out_.writeStartElement(QStringLiteral("info"));
        out_.writeStartElement(QStringLiteral("metadata"));
        out_.writeAttribute(QStringLiteral("owner"), QStringLiteral("http://freedesktop.org"));
        out_.writeEmptyElement(QStringLiteral("mime:mime-type"));
        out_.writeAttribute(QStringLiteral("type"), QStringLiteral("application/x-ferrowick"));
        out_.writeStartElement(QStringLiteral("bookmark:applications"));
        writeApplication();
        for (int element = 0; element < 4; ++element) out_.writeEndElement();
        out_.writeCharacters(QStringLiteral("\n"));
    }

    void writeApplication() {
        isCounted_ = true;
        out_.writeEmptyElement(QStringLiteral("bookmark:application"));
        out_.writeAttribute(QStringLiteral("name"), application);
        out_.writeAttribute(QStringLiteral("exec"), QStringLiteral("'ferrowick %f'"));
        out_.writeAttribute(QStringLiteral("modified"), now_);
        out_.writeAttribute(QStringLiteral("count"), QStringLiteral("1"));
    }

    QString copied_;
    QXmlStreamReader in_;
    QXmlStreamWriter out_;
    QString href_, now_;
    int depth_ = 0;
    bool hasRoot_ = false;
    bool isOurs_ = false; // within the file's bookmark
    bool isThere_ = false, isCounted_ = false;
};

QString readList(const std::string& list) {
    struct stat status {};
    if (::stat(list.c_str(), &status) != 0 && errno == ENOENT) return emptyList;
    const std::optional<std::string> bytes = file::readSmallFile(list, mostBytes);
    if (!bytes) throw Damaged();
    if (bytes->empty()) return emptyList;
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(QByteArrayView(bytes->data(), static_cast<qsizetype>(bytes->size())));
    if (decoder.hasError()) throw Damaged();
    return text;
}

} // namespace

QString noteRecentFile(const QString& list, const QString& file, const QDateTime& now) {
    const std::string path = fromQt(list);
    try {
        const std::string bytes = fromQt(ListCopy(readList(path), file, now).copy());
        // Whoever has taken the right to write from it wants no list.
        struct stat before {};
        if (::stat(path.c_str(), &before) == 0 && (before.st_mode & S_IWUSR) == 0)
            file::raiseSystemError(EACCES, path);
        // A new list takes the permissions of the one before.
        constexpr mode_t ownersAlone = S_IRUSR | S_IWUSR;
        if (::chmod(path.c_str(), ownersAlone) != 0 && errno != ENOENT) file::raiseSystemError(errno, path);
        file::AtomicFile replaced(path);
        if (::fchmod(replaced.fd(), ownersAlone) != 0) file::raiseSystemError(errno, path);
        if (const int error = file::writeAt(replaced.fd(), bytes.data(), bytes.size(), 0); error != 0)
            file::raiseSystemError(error, path);
        replaced.commit();
    } catch (const Damaged&) {
        return list + QStringLiteral(" is no list of recently used files");
    } catch (const core::RunTimeError& error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}

void keepRecentList(app::App& app) {
    shell::recentlyUsed(app).note = [](const std::string& path) {
        const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
        const QString file = QFileInfo(toQt(path)).absoluteFilePath();
        if (folder.isEmpty() || !QFileInfo(folder).isDir()) return;
        QTimer::singleShot(0, [folder, file] {
            const QString fault = noteRecentFile(folder + QStringLiteral("/recently-used.xbel"), file,
                                                 QDateTime::currentDateTime());
            if (!fault.isEmpty()) std::cerr << "ferrowick: " << fromQt(fault) << '\n';
        });
    };
}

} // namespace gui
