#pragma once

#include <array>
#include <string_view>

namespace exchange {

// A column of an address table and what it is in a card: a property, which type of it, and which of the parts
// between its semicolons. The first of the names is the one that a column gets; the others are understood.
struct VcardField {
    std::string_view names; // "Phone Telephone Tel"
    std::string_view property;
    std::string_view type; // of several with this property; empty for the one without
    int part = -1;         // from 0; -1 for all of it
};

constexpr std::array<VcardField, 20> vcardFields = {{
    {"Name Full_Name FullName Contact", "FN", {}, -1},
    {"Last_Name LastName Surname Family_Name", "N", {}, 0},
    {"First_Name FirstName Given_Name Forename", "N", {}, 1},
    {"Middle_Name MiddleName", "N", {}, 2},
    {"Title_Before Prefix Salutation", "N", {}, 3},
    {"Suffix", "N", {}, 4},
    {"Company Organization Organisation Firm", "ORG", {}, 0},
    {"Job_Title Title Position Role", "TITLE", {}, -1},
    {"Phone Telephone Tel Phone_Number", "TEL", {}, -1},
    {"Mobile Cell Mobile_Phone Cell_Phone", "TEL", "CELL", -1},
    {"Fax Fax_Number", "TEL", "FAX", -1},
    {"Email E-mail Mail Email_Address E-Mail_Address", "EMAIL", {}, -1},
    {"Street Address Address1", "ADR", {}, 2},
    {"City Town", "ADR", {}, 3},
    {"State Region Province County", "ADR", {}, 4},
    {"Zip Postcode Postal_Code Zip_Code PostalCode", "ADR", {}, 5},
    {"Country", "ADR", {}, 6},
    {"Birthday Birth_Date Date_of_Birth Born", "BDAY", {}, -1},
    {"Web Website Homepage Web_Page URL Internet", "URL", {}, -1},
    {"Note Notes Remark Remarks Comment Comments", "NOTE", {}, -1},
}};

} // namespace exchange
