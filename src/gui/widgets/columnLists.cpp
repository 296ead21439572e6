#include "gui/widgets/columnLists.h"

#include "gui/widgets/qtText.h"

#include <QLabel>

namespace gui {

QHBoxLayout* makeColumnChoice(QComboBox& list, const std::vector<std::string>& names,
                              const std::function<void(int entry)>& chosen) {
    auto* caption = new QLabel(QObject::tr("&Column:"));
    caption->setBuddy(&list);
    for (const std::string& name : names) list.addItem(toQt(name));
    QObject::connect(&list, &QComboBox::currentIndexChanged, &list, [chosen](int entry) {
        if (entry >= 0) chosen(entry);
    });
    auto* row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(&list, 1);
    return row;
}

void fillCheckList(QTreeWidget& list, const std::vector<std::string>& names,
                   const std::function<void(std::size_t row, bool checked)>& changed) {
    for (const std::string& name : names) {
        auto* item = new QTreeWidgetItem(&list, {toQt(name)});
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                       Qt::ItemNeverHasChildren);
        item->setCheckState(0, Qt::Unchecked);
    }
    list.setCurrentItem(list.topLevelItem(0));
    QObject::connect(&list, &QTreeWidget::itemChanged, &list, [&list, changed](QTreeWidgetItem* item) {
        changed(static_cast<std::size_t>(list.indexOfTopLevelItem(item)), item->checkState(0) == Qt::Checked);
    });
}

void showCheck(QTreeWidget& list, std::size_t row, bool checked) {
    list.topLevelItem(static_cast<int>(row))->setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
}

} // namespace gui
