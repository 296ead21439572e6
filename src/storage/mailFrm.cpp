#include "storage/mailFrm.h"

#include "core/text.h"
#include "core/translate.h"
#include "file/workFiles.h"

#include <algorithm>
#include <filesystem>

namespace storage {

namespace {

void tell(app::App& app, const std::string& text) {
    app.platform.msgBox(text, platform::Icon::Information, core::tr("Send File"));
}

} // namespace

void mailFrm::Text3_Change(std::string_view text, std::size_t caret) {
    const std::size_t size = core::length(text);
    const std::size_t excess = size - std::min(size, mostCharacters);
    const std::size_t end = std::clamp(caret, excess, size);
    Text3Caret = end - excess;
    Text3 = std::string(core::left(text, Text3Caret)).append(core::right(text, size - end));
}

void mailFrm::OKButton_Click() {
    if (core::trim(Text1).empty() || core::trim(Text2).empty()) {
        tell(app_, core::tr("You did not enter either an address or a subject."));
        return;
    }
    const std::string& file = app_.document.currentFile;
    if (!file::fileExists(file)) {
        tell(app_, core::fill(core::tr("The database file could not be found:\n%1"), {file}));
        return;
    }
    std::error_code error;
    const std::filesystem::path attachment = std::filesystem::absolute(file, error);
    const auto tellUnused = [&app = app_] { tell(app, core::tr("Your mail program could not be started.")); };
    switch (app_.platform.sendMail({Text1, Text2, Text3, attachment.string()}, tellUnused)) {
    case platform::MailStart::NoProgram:
        tellUnused();
        break;
    case platform::MailStart::WithoutAttachment:
        tell(app_, core::fill(core::tr("Please attach the database to the message yourself:\n%1"),
                              {attachment.string()}));
        break;
    case platform::MailStart::WithAttachment:
        break;
    }
}

} // namespace storage
