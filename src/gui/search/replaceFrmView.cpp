#include "gui/search/replaceFrmView.h"

#include "gui/dialogs/dialogFit.h"
#include "gui/dialogs/formView.h"
#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace gui {

namespace {

QLabel* labelled(const char* name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1String(name));
    return label;
}

} // namespace

replaceFrmView::replaceFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : QDialog(parent), events_(events), form_(app) {
    setObjectName(QStringLiteral("replaceFrm"));
    setWindowTitle(tr("Find and Replace"));
    auto* column = new QVBoxLayout(this);
    QLabel* listLabel = labelled("Label1", tr("Column to find and replace in:"));
    QTreeWidget* list = makeList();
    listLabel->setBuddy(list);
    column->addWidget(listLabel);
    column->addWidget(list, 1);
    column->addWidget(makeOptions());
    // No button is the default one: what they do cannot be undone.
    const auto add = [&](const char* name, const QString& caption, auto&& clicked) {
        auto* button = new QPushButton(caption);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, clicked);
        return button;
    };
    column->addWidget(add("Command1", tr("&Replace across all columns in all rows"),
                          [this] { run([&] { form_.Command1_Click(); }); }));
    column->addWidget(add("Command3", tr("&Replace in all rows for selected columns."),
                          [this] { run([&] { form_.Command3_Click(); }); }));
    column->addWidget(add("Command2", tr("&Close"), [this] { reject(); }), 0, Qt::AlignRight);
    nameLists(*this);
    const int em = fontMetrics().height();
    resize(QSize(em * 26, em * 30).expandedTo(minimumSizeHint()));
    fitDialog(*this);
}

QTreeWidget* replaceFrmView::makeList() {
    auto* list = new QTreeWidget;
    list->setObjectName(QStringLiteral("List1"));
    list->setHeaderLabel(tr("Columns"));
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    useListLook(*list);
    for (const search::replaceFrm::Entry& entry : form_.List1)
        new QTreeWidgetItem(list, QStringList(toQt(entry.Text)));
    connect(list, &QTreeWidget::itemSelectionChanged, this, [this, list] {
        for (std::size_t i = 0; i < form_.List1.size(); ++i)
            form_.List1[i].Selected = list->topLevelItem(static_cast<int>(i))->isSelected();
    });
    return list;
}

QWidget* replaceFrmView::makeOptions() {
    auto* frame = new QGroupBox(tr(" Replace Options "));
    frame->setObjectName(QStringLiteral("Frame1"));
    auto* form = new QFormLayout(frame);
    const auto addBox = [&](QLabel* label, QLineEdit* box) {
        label->setBuddy(box);
        form->addRow(label, box);
    };
    addBox(labelled("Label3", tr("Find:")), makeBox("Text1", form_.Text1));
    addBox(labelled("Label2", tr("Replace with:")), makeBox("Text2", form_.Text2));
    QLabel* hint =
        labelled("Label4", tr("  Searches are word based, not within string based.  So for example, a "
                              "search for lap would not find lapdog."));
    hint->setWordWrap(true);
    form->addRow(hint);
    return frame;
}

QLineEdit* replaceFrmView::makeBox(const char* name, std::string& text) {
    auto* box = new QLineEdit(toQt(text));
    box->setObjectName(QLatin1String(name));
    connect(box, &QLineEdit::textEdited, this, [&text](const QString& typed) { text = fromQt(typed); });
    return box;
}

void replaceFrmView::run(const std::function<void()>& handler) {
    events_.run(handler);
    if (form_.unloaded) QDialog::reject();
}

void replaceFrmView::reject() {
    run([&] { form_.Command2_Click(); });
}

} // namespace gui

#include "moc_replaceFrmView.cpp"
