#include "entry/valueBoxes.h"

#include "core/text.h"

namespace entry {

using core::ColumnType;
using core::LocaleForm;

namespace {

ColumnType typeOf(const app::App& app, std::string_view name) {
    const core::Column* column = app.document.LV.columns.find(name);
    return column == nullptr ? ColumnType::None : column->type();
}

} // namespace

std::string shownValue(const app::App& app, std::string_view column, std::string_view value) {
    const LocaleForm* form = app::formInUse(app);
    return form == nullptr ? std::string(value) : core::shownIn(*form, typeOf(app, column), value);
}

std::string ValueBoxes::typed(int box, std::string_view column, std::string_view text) {
    const LocaleForm* form = app::formInUse(app_);
    if (form == nullptr) return std::string(text);
    const std::size_t before = box == box_ ? text_.size() : 0;
    box_ = box;
    text_ = text;
    const ColumnType type = typeOf(app_, column);
    // A separator that is deleted does not come straight back.
    if (type == ColumnType::Date && text.size() > before) text_ = core::withDateSeparators(*form, text);
    return core::cellFrom(*form, type, text_);
}

std::string ValueBoxes::shown(int box, std::string_view column, std::string_view value) const {
    const LocaleForm* form = app::formInUse(app_);
    if (form == nullptr) return std::string(value);
    const ColumnType type = typeOf(app_, column);
    if (box == box_ && core::cellFrom(*form, type, text_) == value) return text_;
    return core::shownIn(*form, type, value);
}

char32_t ValueBoxes::key(char32_t character) const {
    const LocaleForm* form = app::formInUse(app_);
    if (form == nullptr) return character;
    std::string text;
    core::appendCodePoint(text, character);
    return text == form->decimal ? U'.' : character;
}

} // namespace entry
