#pragma once

#include "app/app.h"
#include "codes/code.h"
#include "layout/storedPictures.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace search {

// Codes for a column of pictures, made of each record's texts.
struct CodeOrder {
    std::string column;
    codes::Kind kind = codes::Kind::QR;
    std::string source; // see CodeSource
};

// Why the order cannot be carried out for any record; nothing when it can.
std::optional<std::string> faultOf(const core::Document& document, const CodeOrder& order);

struct FaultyText {
    core::Item* record = nullptr;
    std::string reason;
};

// What is going to be written. A record without a text loses the code that it has, but no other picture.
struct MadeCodes {
    std::vector<layout::NewPicture> pictures;
    std::vector<std::pair<core::Item*, std::string>> cells; // record, name of its picture
    std::vector<FaultyText> faulty;                         // these stay as they are
};

// Makes all of them in memory and changes nothing. Raises `cancelled` when the user gives it up.
MadeCodes makeCodes(app::App& app, const CodeOrder& order, const std::vector<core::Item*>& records);

// Puts the pictures into the open file and names them in the cells. Codes that nothing uses any more, not
// even what is saved, leave the file if it is asked for. Answers how many cells are others than before.
// Raises when the file takes no pictures; nothing has changed then.
int writeCodes(app::App& app, const std::string& column, const MadeCodes& made, bool bDropUnused);

// Those that neither the records nor the saved text name, for good where nothing can be undone.
void dropUnusedCodes(app::App& app);

} // namespace search
