#include "gui/machine/localeForm.h"

#include "gui/widgets/qtText.h"

namespace gui {

namespace {

using core::LocaleForm;

void readDateForm(LocaleForm& form, const QString& pattern) {
    const qsizetype day = pattern.indexOf(u'd'), month = pattern.indexOf(u'M'), year = pattern.indexOf(u'y');
    form.order = year < day && year < month ? LocaleForm::DateOrder::YearMonthDay
                 : day < month              ? LocaleForm::DateOrder::DayMonthYear
                                            : LocaleForm::DateOrder::MonthDayYear;
    form.dateSeparator = '/';
    for (const char mark : {'.', '/', '-'})
        if (pattern.contains(QLatin1Char(mark))) {
            form.dateSeparator = mark;
            break;
        }
}

} // namespace

std::optional<LocaleForm> formOf(const QLocale& locale) {
    if (locale.language() == QLocale::C) return std::nullopt;
    LocaleForm form;
    readDateForm(form, locale.dateFormat(QLocale::ShortFormat));
    form.decimal = fromQt(locale.decimalPoint());
    form.group = fromQt(locale.groupSeparator());
    if (form.decimal.empty()) form.decimal = ".";
    if (form.group == form.decimal) form.group.clear();
    const QString symbol = locale.currencySymbol();
    if (symbol.isEmpty()) return form;
    form.currency = fromQt(symbol);
    const QString amount = locale.toCurrencyString(1.0);
    form.currencyBehind = !amount.startsWith(symbol);
    const qsizetype place = amount.indexOf(symbol);
    const qsizetype beside = form.currencyBehind ? place - 1 : place + symbol.size();
    form.currencyApart = place >= 0 && beside >= 0 && beside < amount.size() && amount.at(beside).isSpace();
    return form;
}

} // namespace gui
