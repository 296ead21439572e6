#pragma once

#include "app/app.h"

#include <string>
#include <string_view>
#include <vector>

namespace calc {

// The Expression Editor. Every edit of the expression comes from its buttons and lists.
class formulateFrm {
public:
    struct Row {
        std::string Name;
        std::string Formula; // the expression, or "Undefined"
    };

    explicit formulateFrm(app::App& app); // Load

    std::vector<Row> colList;           // the calculation columns
    std::vector<std::string> fieldList; // the columns that an expression may refer to
    std::string expTxt;
    int selectedRow = -1; // of colList, from 0
    bool fieldListEnabled = false;
    bool addCalcBtnEnabled = false;
    bool unloaded = false;

    void Form_Activate(); // closes the form of a database without calculation columns
    void colList_Click(int row);
    void fieldList_Click(std::size_t entry);
    void NumKey_Click(int index);                 // 0 to 9, 10 for the point
    void operatorBtn_Click(std::string_view tag); // "Add", "Subtract", "Multiply", "Divide", "Left", "Right"
    void backBtn_Click();
    void clearBtn_Click();
    void addCalcBtn_Click();
    void donebtn_Click();
    void Form_QueryUnload(); // every way of closing comes here

private:
    void edit(std::string text);
    void undefineWithDependants();
    void storeFormulas();

    app::App& app_;
    std::vector<std::string> expHistory_;
    bool bApplied_ = false;
};

} // namespace calc
