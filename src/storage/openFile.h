#pragma once

#include "app/app.h"

namespace storage {

// Opens a database into the document. With StartUp currentFile already names it; without, the user
// picks it. No result: success shows as a filled window with currentFile set, failure as an empty
// one, without a message. The document that was open is given up before the new one is known to be
// readable, and nobody asks about its changes: that question belongs to the callers that ask it.
void OpenFile(app::App& app, bool StartUp);

// The same with the records of a recovery copy in place of those that the file has. False when it is not
// opened.
[[nodiscard]] bool openRecovered(app::App& app, const std::string& file, const std::string& archive);

// What OpenFile does for a front end that must tell why a file cannot be opened: reads the archive
// into the cleared document and lets the error through.
void readArchive(app::App& app, const std::string& path);

// Puts the text of a database in the place of the open document, which the user has given up, as unsaved work
// on the file that is open. Raises what reading it raises, with the document then half read: who calls has
// read it before.
void replaceDocument(app::App& app, std::string text);

// Unpacks the clip art of the layout into the work folder and fits it. What the archive does not have stays
// empty.
void extractClipArt(app::App& app);

} // namespace storage
