#pragma once

#include <QGroupBox>
#include <QLineEdit>

#include <functional>
#include <string>

namespace gui {

// What both page setup dialogs have.

// A line edit that writes into a member of its form as the user types.
QLineEdit* boundEdit(const char* name, std::string& member);

// The frame " Margins " with its four boxes.
QGroupBox* makeMarginsFrame(std::string& left, std::string& right, std::string& top, std::string& bottom);

// A frame with two options for one choice.
QGroupBox* makeOptionsFrame(const QString& caption, const char* firstName, const QString& first,
                            const char* secondName, const QString& second, bool& isFirst);

} // namespace gui
