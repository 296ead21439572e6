#include "gui/machine/language.h"

#include "core/translate.h"
#include "gui/widgets/qtText.h"
#include "platform/programFiles.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace gui {

namespace {

// A text means the same wherever it stands, so that the catalogue is asked without the name of the class,
// which the texts of the logic do not have.
class Catalogue : public QTranslator {
public:
    using QTranslator::QTranslator;

    QString translate(const char*, const char* text, const char* many, int n) const override {
        return QTranslator::translate("Ferrowick", text, many, n);
    }
};

} // namespace

bool useLanguage(const QString& folder, const QString& code) {
    auto* ours = new Catalogue(QCoreApplication::instance());
    if (!ours->load(QStringLiteral("ferrowick_") + code, folder)) {
        delete ours;
        return false;
    }
    // Asked before ours, where the same short text is known to both.
    QCoreApplication::installTranslator(ours);
    auto* qt = new QTranslator(QCoreApplication::instance());
    if (qt->load(QStringLiteral("qtbase_") + code, folder)) QCoreApplication::installTranslator(qt);
    core::setCatalogue([ours](const std::string& text, const std::string& many, int n) {
        return fromQt(ours->translate(nullptr, text.c_str(), many.empty() ? nullptr : many.c_str(), n));
    });
    return true;
}

void useLanguageOfUser() {
    const auto folder = platform::programFile("translations");
    if (!folder) return;
    for (const QString& language : QLocale().uiLanguages()) {
        const QString code = language.section(u'-', 0, 0);
        if (code == u"en" || code == u"C" || useLanguage(toQt(folder->string()), code)) return;
    }
}

} // namespace gui
