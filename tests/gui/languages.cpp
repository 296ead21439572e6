#include "session.h"

#include "core/translate.h"
#include "gui/machine/language.h"
#include "gui/widgets/accessibleRoles.h"
#include "gui/widgets/palette.h"
#include "gui/widgets/programStyle.h"
#include "shell/commands.h"

#include <set>

namespace {

// Longer than English by about as much as German is, and in letters that no English text has.
QString pseudo(const QString& text) {
    QString out = u"\u27e6"_s;
    for (const QChar& letter : text) {
        const auto at = "aeiounyAEIOUNY"_L1.indexOf(letter);
        out += at < 0
                   ? letter
                   : u"\u00e0\u00e9\u00ee\u00f6\u00fc\u00f1\u00ff\u00c0\u00c9\u00ce\u00d6\u00dc\u00d1\u0178"_s
                         [at];
    }
    return out + QString(text.size() / 4, u'~') + u'\u27e7';
}
bool isPseudo(const QString& text) {
    return text.contains(u'\u27e6');
}

struct PseudoLanguage : QTranslator {
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override {
        return pseudo(QString::fromUtf8(text));
    }
};

// Whatever is wrong with the widgets of a window or of a page of it.
struct Complaints {
    QString language; // of the catalogue
    QStringList all;
    std::set<QString> data{u"The Odyssey"_s, u"Title"_s, u"How many?"_s,
                           u"A title that is longer than its box"_s}; // what is in no catalogue

    void expect(bool isFine, const char* fault, const QWidget& w) {
        const QString name = w.objectName() + u" in "_s + w.window()->objectName();
        if (!isFine)
            all << QString::asprintf("%s: %s %s", fault, w.metaObject()->className(), qPrintable(name));
    }
    static QWidgetList visible(const QWidget& page) {
        QWidgetList all = page.findChildren<QWidget*>(QRegularExpression(u"^(?!qt_)"_s));
        all.removeIf([&](const QWidget* w) { return !w->isVisibleTo(&page); });
        return all;
    }

    void ownTexts(const app::App& app) {
        for (const core::Column& column : app.document.LV.columns) data.insert(gui::toQt(column.Text));
    }
    // Captions that share a letter, but for those where it is wanted.
    void sharedLetters(const QStringList& captions) {
        std::map<QString, QString> letters;
        for (const QString& caption : captions) {
            const QString letter = QKeySequence::mnemonic(caption).toString();
            if (letter.isEmpty() || isPseudo(caption) || caption.startsWith("&Replace "_L1) ||
                caption == "&Invoices"_L1)
                continue;
            if (letters.contains(letter)) all << letters[letter] + u" and "_s + caption;
            letters[letter] = caption;
        }
    }
    // Without a name or a tip for somebody who has the keys or a screen reader only.
    void unnamed(const QWidget& page) {
        QStringList captions;
        for (QWidget* w : visible(page)) {
            const auto* label = qobject_cast<QLabel*>(w);
            const bool isFree = label != nullptr && label->buddy() == nullptr;
            const bool isPanel = w->parent()->objectName() == "SB1"_L1;
            expect(!isFree || isPanel || !label->text().endsWith(u':'), "label of nothing", *w);
            if (!isFree) captions << w->property("text").toString() << w->property("title").toString();
            const bool isTool = w->inherits("QToolButton"), inBar = w->parent()->inherits("QToolBar");
            expect(!inBar || !isTool || !w->toolTip().isEmpty(), "no tip", *w);
            const bool hasKeys = w->focusPolicy() != Qt::NoFocus || w->inherits("QToolBar");
            const QString name = QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name);
            expect(!(inBar ? isTool : hasKeys) || !name.trimmed().isEmpty(), "no name", *w);
        }
        sharedLetters(captions);
    }
    // What a screen reader says of it: what it is, how it stands and what it holds.
    void unspoken(const QWidget& page) {
        for (QWidget* w : visible(page)) {
            if (w->focusPolicy() == Qt::NoFocus || w->inherits("QTabWidget")) continue;
            QAccessibleInterface* told = QAccessible::queryAccessibleInterface(w);
            const QAccessible::Role role = told->role();
            expect(role != QAccessible::NoRole && role != QAccessible::Client && role != QAccessible::Grip,
                   "no role", *w);
            const QAccessible::State state = told->state();
            expect(state.disabled != w->isEnabled() && (state.focusable || state.disabled), "no state", *w);
            if (const auto* button = qobject_cast<const QAbstractButton*>(w);
                button != nullptr && button->isCheckable())
                expect(state.checkable && state.checked == button->isChecked(), "no state of its check", *w);
            const auto* line = qobject_cast<const QLineEdit*>(w);
            const bool isSecret = line != nullptr && line->echoMode() != QLineEdit::Normal;
            if (line != nullptr && !isSecret)
                expect(told->text(QAccessible::Value) == line->text(), "no value", *w);
            if (const auto* box = qobject_cast<const QComboBox*>(w))
                expect(told->text(QAccessible::Value) == box->currentText(), "no value", *w);
            if (const auto* view = qobject_cast<const QAbstractItemView*>(w);
                view != nullptr && view->model() != nullptr)
                expect(told->tableInterface() != nullptr &&
                           told->tableInterface()->rowCount() >= view->model()->rowCount(),
                       "no rows", *w);
        }
    }
    void faint(const QWidget& page) {
        using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
        for (const QWidget* w : visible(page)) {
            if (w->objectName() == "layoutPic2"_L1 || w->parent()->objectName() == "layoutPic2"_L1)
                continue; // its user's
            for (const auto& [text, ground] :
                 {Pair{w->foregroundRole(), w->backgroundRole()},
                  Pair{QPalette::HighlightedText, QPalette::Highlight}, Pair{QPalette::Text, QPalette::Base},
                  Pair{QPalette::Text, QPalette::AlternateBase},
                  Pair{QPalette::PlaceholderText, QPalette::Base},
                  Pair{QPalette::ToolTipText, QPalette::ToolTipBase}}) {
                const QPalette& colours = w->palette();
                const double told = gui::contrast(colours.color(text), colours.color(ground));
                const QString role = u"faint %1"_s.arg(QVariant::fromValue(text).toString());
                expect(!w->isEnabled() || told >= gui::leastContrast, qPrintable(role), *w);
            }
        }
    }
    // What does not come from the catalogue of the pseudo-language, nor from the document.
    void untranslated(const QWidget& page) {
        QStringList texts{page.windowTitle()};
        const auto heads = [&](const QAbstractItemModel* model, bool isAll) {
            for (int column = 0; model != nullptr && column < model->columnCount(); ++column)
                texts << model->headerData(column, Qt::Horizontal).toString();
            for (int row = 0; isAll && row < model->rowCount(); ++row)
                texts << model->index(row, 0).data().toString();
        };
        for (const QWidget* w : visible(page)) {
            if (w->inherits("QFontComboBox") || w->inherits("QLineEdit")) continue;
            for (const char* property : {"text", "title", "placeholderText", "toolTip", "prefix", "suffix"})
                texts << w->property(property).toString();
            if (const auto* box = qobject_cast<const QComboBox*>(w)) heads(box->model(), true);
            if (const auto* view = qobject_cast<const QTreeView*>(w))
                heads(view->isHeaderHidden() ? nullptr : view->model(), false);
            if (const auto* list = qobject_cast<const QListWidget*>(w);
                list != nullptr && page.objectName() != "fontDialog"_L1)
                heads(list->model(), true);
            if (const auto* tabs = qobject_cast<const QTabBar*>(w))
                for (int i = 0; i < tabs->count(); ++i) texts << tabs->tabText(i);
        }
        for (const QAction* action : page.findChildren<QAction*>())
            texts << action->text() << action->toolTip();
        static const QRegularExpression letters(u"[A-Za-z]{3}"_s),
            names(u"^([A-Z]{3}|lei|UTF-.*|Windows-.*|Ferrowick.*|.*/.*|.*\\.jpg|mailto:.*|\\d.*)$"_s);
        for (const QString& text : texts)
            if (isPseudo(text) != (language == "pseudo"_L1) && text.contains(letters) &&
                !data.contains(text) && !text.contains(names))
                all << u"not translated: "_s + text + u" in "_s + page.objectName();
    }
    // Headings and cells that end in dots. What the document holds may.
    void cutCells(const QWidget& w) {
        const auto* tree = qobject_cast<const QTreeWidget*>(&w);
        if (tree == nullptr || language == "pseudo"_L1) return;
        const QFontMetrics font = tree->fontMetrics();
        const int margins = 2 * (tree->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, tree) + 1);
        for (int column = 0; column < tree->columnCount(); ++column) {
            const QHeaderView* heads = tree->header();
            if (!tree->isHeaderHidden())
                expect(heads->sectionSize(column) >= font.horizontalAdvance(tree->headerItem()->text(column)),
                       "cut heading", w);
            for (int row = 0; row < std::min(tree->topLevelItemCount(), 20); ++row) {
                const QString text = tree->topLevelItem(row)->text(column);
                const int room = tree->visualItemRect(tree->topLevelItem(row)).width();
                if (data.contains(text) || text.contains(QRegularExpression(u"[0-9.]"_s)) || room <= 0)
                    continue;
                expect(tree->wordWrap() ||
                           heads->sectionSize(column) >= font.horizontalAdvance(text) + margins,
                       "cut cell", w);
            }
        }
    }
    // Over another widget, but for a pixel of rounding, beyond its frame, or cut.
    void misplaced(const QWidget& page) {
        for (const QWidget* w : visible(page)) {
            const QWidget& parent = *w->parentWidget();
            const QString name = parent.objectName();
            const bool isScrolled = name == "qt_scrollarea_viewport"_L1 || name == "Picture1"_L1;
            const bool isHeader = w->inherits("QHeaderView") || parent.inherits("QHeaderView");
            expect(isScrolled || isHeader || parent.rect().contains(w->geometry()), "beyond its frame", *w);
            for (const QWidget* other : visible(parent)) {
                const QRect shared = other->geometry() & w->geometry();
                const bool isBeside = other->parent() != &parent || other == w;
                expect(isBeside || shared.width() < 2 || shared.height() < 2, "over another", *w);
            }
            QSize least = w->minimumSizeHint().expandedTo({0, w->heightForWidth(w->width())});
            if (w->minimumWidth() > 0) least.setWidth(w->minimumWidth()); // narrower by intention
            const bool isFree = !isHeader && w->minimumHeight() < w->maximumHeight();
            expect(!isFree || w->size().expandedTo(least) == w->size(), "cut", *w);
            cutCells(*w);
            const auto* bar = qobject_cast<const QScrollBar*>(w);
            expect(bar == nullptr || bar->objectName().isEmpty() || bar->maximum() > 1, "no use", *w);
            const auto* tree = qobject_cast<const QTreeWidget*>(w);
            const bool hasHeading = tree != nullptr && !tree->isHeaderHidden();
            expect(!hasHeading || tree->headerItem()->text(0) != "1"_L1, "no heading", *w);
        }
    }
    // By Tab, or without a sign of having the keys, which a list shows all round.
    void unreached(const QWidget& dialog) {
        std::set<const QWidget*> reached;
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab); // to show the keys begins with the first Tab
        for (QWidget* w = dialog.focusWidget(); reached.insert(w).second; w = dialog.focusWidget()) {
            expect(w->visibleRegion().boundingRect() == w->rect(), "hidden", *w);
            const QImage with = w->grab().toImage();
            QTest::keyClick(w, Qt::Key_Tab);
            const QImage without = w->grab().toImage();
            const bool isText = w->inherits("QTextEdit") || w->inherits("QPlainTextEdit");
            const bool isOther = isText || w->inherits("QPushButton") || w->hasFocus();
            expect(isOther || with != without, "no sign of the keys", *w);
            const int x = with.width() - 1, y = with.height() - 1;
            for (const QPoint at : {QPoint(x / 2, 0), QPoint(x / 2, y), QPoint(0, y / 2), QPoint(x, y / 2)})
                expect(!w->inherits("QTreeWidget") || with.pixel(at) != without.pixel(at), "no frame", *w);
        }
        for (const QWidget* w : visible(dialog))
            if (w->isEnabled() && (w->focusPolicy() & Qt::TabFocus) != 0 && w->focusProxy() == nullptr)
                expect(reached.contains(w), "not reached", *w);
    }
};

} // namespace

// Every window in every language, to somebody without a mouse or without eyes too.
class Languages : public GuiTest {
    Q_OBJECT

private slots:
    void initTestCase() {
        QApplication::setStyle(new gui::ProgramStyle);
        gui::tellRoles();
    }
    // What a catalogue does not have shows in the pseudo-language.
    void init() {
        GuiTest::init();
        QFETCH_GLOBAL(QString, language);
        QFETCH_GLOBAL(bool, isFromRight);
        QApplication::setLayoutDirection(isFromRight ? Qt::RightToLeft : Qt::LeftToRight);
        if (isFromRight) gui::useDarkColours();
        if (language.isEmpty()) return;
        QCoreApplication::installTranslator(new PseudoLanguage(qApp));
        core::setCatalogue([](const std::string& text, const std::string&, int) {
            return gui::fromQt(pseudo(gui::toQt(text)));
        });
        if (language != "pseudo"_L1)
            QVERIFY(gui::useLanguage(QStringLiteral(FERROWICK_DATA "/translations"), language));
    }
    void cleanup() {
        qDeleteAll(qApp->findChildren<QTranslator*>());
        core::setCatalogue({});
        QApplication::setPalette(QPalette());
        QApplication::setStyle(new gui::ProgramStyle);
    }
    void initTestCase_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("isFromRight");
        QTest::newRow("English") << QString() << false;
        QTest::newRow("pseudo") << u"pseudo"_s << false;
        QTest::newRow("pseudo from the right") << u"pseudo"_s << true;
        for (const char* code : {"de", "fr", "es"}) QTest::newRow(code) << QString::fromLatin1(code) << false;
    }

    // Also where the texts are so large that dialogs have to scroll.
    void everyDialog() {
        QFETCH_GLOBAL(QString, language);
        Complaints complaints;
        complaints.language = language;
        int shown = 0;
        const std::function<void(QDialog&)> look = [&](QDialog& dialog) {
            complaints.unnamed(dialog);
            complaints.untranslated(dialog);
            complaints.unspoken(dialog);
            complaints.faint(dialog);
            complaints.misplaced(dialog);
            if (language.isEmpty() || QApplication::isRightToLeft())
                complaints.unreached(
                    dialog); // the slowest, and the same in each language but for the colours
            const int title = dialog.fontMetrics().horizontalAdvance(dialog.windowTitle());
            complaints.expect(title > 0 && dialog.width() > title, "narrower than its title", dialog);
            const int room = dialog.screen()->availableSize().height();
            complaints.expect(dialog.height() <= room, "higher than the screen", dialog);
            ++shown;
            dialog.close();
        };
        const bool isReal = language.size() == 2; // what stands on dialogs of invoices is seen in the others
        for (const char* file : {"books.fwk", "invoices.fwk"}) {
            if (isReal && *file == 'i') continue;
            Session run(sample(file), *file == 'b' ? 13 : 9);
            complaints.ownTexts(run.app);
            run.onDialog = look;
            for (const char* form :
                 {"disclaimFrm",      "databaseTypeFrm",    "designFrm",    "entryFrm",
                  "formulateFrm",     "TotalsFrm",          "mailFrm",      "reportPageSetup",
                  "reportChoicesFrm", "layoutPageSetupFrm", "replaceFrm",   "searchFrm",
                  "serialFrm",        "repeatFrm",          "setValuesFrm", "duplicatesFrm",
                  "serialCheckFrm",   "statisticsFrm",      "coloursFrm",   "makeCodeFrm",
                  "exportFrm"})
                run.platform.showForm(form);
        }
        Session run(sample("books.fwk"), 26);
        run.onDialog = look;
        for (const char* form : {"searchFrm", "reportPageSetup", "designFrm"}) run.platform.showForm(form);
        run.platform.chosenFile = TEST_DATA_DIR "/tables/gn-us.csv";
        run.act(u"click mnuImportTable"_s);
        gui::QtPlatform platform;
        platform.msgBox("Save?", platform::Icon::Question, "Title", platform::Buttons::YesNo);
        platform.inputBox("How many?", "A title that is longer than its box", "1");
        platform.showFont({"Arial", 8});
        complaints.all.removeDuplicates();
        for (const QString& each : complaints.all) qWarning().noquote() << each;
        QVERIFY(complaints.all.isEmpty());
        QCOMPARE(shown, isReal ? 28 : 49);
    }

    void theMainWindow() {
        QFETCH_GLOBAL(QString, language);
        Complaints complaints;
        complaints.language = language;
        const QPalette before = QApplication::palette();
        for (const char* file : {"books.fwk", "invoices.fwk", ""}) {
            Session run(*file == 0 ? QString() : sample(file));
            complaints.ownTexts(run.app);
            run.act(u"click mnuSummary"_s);
            for (const char* command : {"Totals", "Design"}) {
                for (const int tab : {1, 2, 0}) {
                    run.act(u"tab %1"_s.arg(tab));
                    complaints.unnamed(run.window);
                    complaints.untranslated(run.window);
                    complaints.unspoken(run.window);
                    complaints.faint(run.window);
                }
                complaints.misplaced(*run.find<QTabWidget>(u"SSTab1"_s)->currentWidget());
                run.act(u"click "_s + QLatin1String(command));
            }
            for (const QMenu* menu : run.window.menuBar()->findChildren<QMenu*>()) {
                QStringList captions;
                for (const QAction* item : menu->actions()) captions << item->text();
                complaints.sharedLetters(captions);
            }
            for (const QAction* action : run.window.findChildren<QAction*>()) {
                const std::string key = gui::fromQt(action->objectName());
                if (*file != 0 || !language.isEmpty() || !shell::hasCommand(key) ||
                    shell::command(key).icon.empty())
                    continue;
                const QImage light = action->icon().pixmap(QSize(24, 24)).toImage();
                gui::useDarkColours();
                const QImage dark = action->icon().pixmap(QSize(24, 24)).toImage();
                // The pictures of the templates have a ground of their own.
                if (light == dark && !key.starts_with("mnuTemplate"))
                    complaints.all << action->objectName() + u" is not seen"_s;
                QApplication::setPalette(before);
            }
        }
        complaints.all.removeDuplicates();
        for (const QString& each : complaints.all) qWarning().noquote() << each;
        QVERIFY(complaints.all.isEmpty());
    }
};

GUI_TEST(Languages)
#include "languages.moc"
