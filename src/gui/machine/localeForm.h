#pragma once

#include "core/locale/localeForm.h"

#include <QLocale>

#include <optional>

namespace gui {

// How a locale writes dates, numbers and amounts, with two digits for days and months and four for years.
// None of the C locale, which has no form of its own.
std::optional<core::LocaleForm> formOf(const QLocale& locale);

} // namespace gui
