#include "gui/machine/systemPrinter.h"

#include "core/translate.h"
#include "drawing/papers.h"
#include "gui/dialogs/dialogFit.h"
#include "gui/widgets/qtText.h"
#include "qtprint/paperTarget.h"

#include <QDir>
#include <QEvent>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QTabWidget>

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace gui {

namespace {

// A printer takes its own paper rather than one of the same size, so that it finds the tray.
class PrinterTarget : public qtprint::PaperTarget {
public:
    PrinterTarget(QPrinter& printer, drawing::TextMetrics& metrics)
        : PaperTarget(printer, metrics, Jobs::EachByItself), printer_(printer) {}
    ~PrinterTarget() override { close(); }

    // As its driver tells for the paper that it has been given.
    drawing::SheetEnds unprintable() const override {
        constexpr float twipsPerPoint = 20;
        QPageLayout layout = printer_.pageLayout();
        layout.setUnits(QPageLayout::Point);
        const QMarginsF points = layout.minimumMargins();
        return {static_cast<float>(points.top()) * twipsPerPoint,
                static_cast<float>(points.bottom()) * twipsPerPoint};
    }

protected:
    void choosePaper(const drawing::PageSetup& setup) override {
        const QPageSize::PageSizeId id = QPageSize::id(setup.PaperSize);
        printer_.setFullPage(true);
        printer_.setColorMode(QPrinter::Color);
        if (setup.PaperSize == drawing::customPaperCode || id == QPageSize::Custom) {
            PaperTarget::choosePaper(setup);
            return;
        }
        QPageLayout layout(QPageSize(id),
                           setup.Orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait, {});
        layout.setMode(QPageLayout::FullPageMode);
        printer_.setPageLayout(layout);
    }

private:
    QPrinter& printer_;
};

// Qt shows its choice of pages whenever the dialog comes up, also where none is offered.
class KeptHidden final : public QObject {
public:
    explicit KeptHidden(QWidget* part) : QObject(part) {
        part->installEventFilter(this);
        part->hide();
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ShowToParent) static_cast<QWidget*>(watched)->hide();
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

QPrinter& SystemPrinter::printer() {
    if (printer_) return *printer_;
    QPrinterInfo info = QPrinterInfo::defaultPrinter();
    const QStringList names = info.isNull() ? QPrinterInfo::availablePrinterNames() : QStringList();
    if (!names.isEmpty()) info = QPrinterInfo::printerInfo(names.constFirst());
    printer_ = info.isNull() ? std::make_unique<QPrinter>(QPrinter::HighResolution)
                             : std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    if (info.isNull()) printer_->setOutputFormat(QPrinter::PdfFormat);
    return *printer_;
}

bool SystemPrinter::isPdf() {
    return printer().outputFormat() == QPrinter::PdfFormat;
}

std::string SystemPrinter::deviceName() {
    return isPdf() ? core::tr("Print to PDF") : fromQt(printer().printerName());
}

std::vector<platform::PaperName> SystemPrinter::papers() {
    const QPrinterInfo info = QPrinterInfo::printerInfo(printer().printerName());
    std::vector<platform::PaperName> papers;
    std::set<QString> names;
    for (const QPageSize& size : info.supportedPageSizes()) {
        const int code = size.windowsId();
        const bool isKnown = code > 0 && drawing::findPaper(code) != nullptr;
        if (!size.isValid() || !names.insert(size.name()).second) continue;
        if (isKnown) {
            papers.push_back({fromQt(size.name()), code});
        } else { // without a code, the database keeps its lengths
            constexpr qreal twipsPerPoint = 20;
            const QSizeF points = size.size(QPageSize::Point) * twipsPerPoint;
            papers.push_back({fromQt(size.name()),
                              drawing::customPaperCode,
                              {std::lround(points.width()), std::lround(points.height())}});
        }
    }
    const QString custom = QObject::tr("Custom");
    if (info.supportsCustomPageSizes() && names.insert(custom).second)
        papers.push_back({fromQt(custom), drawing::customPaperCode});
    return papers;
}

std::optional<platform::PrintChoice> SystemPrinter::showDialog(const platform::PrintChoice& present,
                                                               const QString& pdfFile, QWidget* parent) {
    QPrinter& chosen = printer();
    if (isPdf()) chosen.setOutputFileName(pdfFile);
    // Not every paper of a database has a name in Qt; its size it has.
    const QPageSize::PageSizeId id = QPageSize::id(present.PaperSize);
    const drawing::PaperSize* paper = drawing::findPaper(present.PaperSize);
    constexpr qreal twipsPerPoint = 20;
    if (id != QPageSize::Custom)
        chosen.setPageSize(QPageSize(id));
    else if (paper != nullptr)
        chosen.setPageSize(QPageSize(
            QSizeF(static_cast<qreal>(paper->Width), static_cast<qreal>(paper->Height)) / twipsPerPoint,
            QPageSize::Point, toQt(core::tr(paper->name))));
    const int offered = chosen.pageLayout().pageSize().windowsId();
    chosen.setPageOrientation(present.Orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPrintDialog dialog(&chosen, parent);
    dialog.setObjectName(QStringLiteral("printDialog"));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize |
                      QAbstractPrintDialog::PrintCollateCopies);
    if (auto* pages = dialog.findChild<QWidget*>(QStringLiteral("gbPrintRange"))) new KeptHidden(pages);
    // The options that a button unfolds push the buttons down.
    keepOnScreen(dialog);
    const auto* options = dialog.findChild<QTabWidget*>();
    const int unfolds = options == nullptr ? 0 : options->minimumSizeHint().height();
    if (dialog.minimumSizeHint().height() + unfolds > roomOnScreen(dialog).height())
        fitDialog(dialog, unfolds);
    // Qt would cut the names of printer and file.
    constexpr int letters = 64;
    const int wide = letters * dialog.fontMetrics().averageCharWidth();
    dialog.setMinimumWidth(std::max(dialog.minimumWidth(), std::min(wide, roomOnScreen(dialog).width())));
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    if (isPdf()) fileName_ = chosen.outputFileName();
    platform::PrintChoice choice = present;
    // A custom size comes back as no paper of a name; then the database keeps what it has.
    const int code = chosen.pageLayout().pageSize().windowsId();
    // Of two codes for one size, and where nothing else was chosen, the database keeps its own.
    if (present.PaperSize != drawing::customPaperCode && code > 0 && code != offered) choice.PaperSize = code;
    choice.Orientation = chosen.pageLayout().orientation() == QPageLayout::Landscape ? 2 : 1;
    return choice;
}

QString SystemPrinter::takeFileName() {
    return std::exchange(fileName_, QString());
}

std::unique_ptr<drawing::DrawTarget> SystemPrinter::open(const std::string& documentName,
                                                         drawing::TextMetrics& metrics) {
    printer().setDocName(toQt(documentName));
    return std::make_unique<PrinterTarget>(printer(), metrics);
}

} // namespace gui
