#pragma once

#include <QComboBox>
#include <QHBoxLayout>
#include <QTreeWidget>

#include <functional>
#include <string>
#include <vector>

namespace gui {

// "Column:" with a list to choose one from, as the head of a form.
QHBoxLayout* makeColumnChoice(QComboBox& list, const std::vector<std::string>& names,
                              const std::function<void(int entry)>& chosen);

// A list of columns with check marks, the first of them the current one.
void fillCheckList(QTreeWidget& list, const std::vector<std::string>& names,
                   const std::function<void(std::size_t row, bool checked)>& changed);
void showCheck(QTreeWidget& list, std::size_t row, bool checked);

} // namespace gui
