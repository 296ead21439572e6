#pragma once

#include "app/app.h"
#include "layout/images.h"

namespace entry {

// Show the current record of theListView in the layout's fields, and its pictures in the picture
// boxes. A picture is unpacked into the work folder once per open.
void retrieveFields(app::App& app);
void retrievePictures(app::App& app);

// Both, as the style of the database has them.
void showRecord(app::App& app);

// While one is there the database is opened once for the pictures of all records that are shown, not once for
// each, which takes as long as it has pictures. Nothing may write into the file meanwhile.
class ManyRecordsShown {
public:
    explicit ManyRecordsShown(app::App& app);
    ~ManyRecordsShown();
    ManyRecordsShown(const ManyRecordsShown&) = delete;
    ManyRecordsShown& operator=(const ManyRecordsShown&) = delete;

private:
    app::App& app_;
    layout::ImageArchive archive_;
    layout::ImageArchive* before_;
};

// Shows the record of a page that was set up for browsing. The sheet is empty when a search has found none;
// for the first record of an empty database it keeps what is typed there.
void showPage(app::App& app);

// Shows the current record on the layout page anew, when that page is in front: whatever makes another record
// the current one, or changes it behind the page, comes here, since the sheet and its record must not part.
void refreshShownRecord(app::App& app);

// Empties the fields and the picture boxes.
void clearSheet(core::Document& document);

// The record on view, or nothing in a list of the Totals row alone.
const core::Item* currentRecord(const app::App& app);

// The cell as a text box shows it: text as it stands, all else trimmed.
std::string shownText(const core::Column& column, std::string_view cell);

} // namespace entry
