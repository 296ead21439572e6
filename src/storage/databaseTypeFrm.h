#pragma once

#include "app/app.h"

namespace storage {

// Asks for the style of a new database.
class databaseTypeFrm {
public:
    explicit databaseTypeFrm(app::App& app) : app_(app) {}

    bool Option1 = true;  // standard
    bool Option2 = false; // invoice
    bool unloaded = false;

    // The style of the document that is open changes at once, before the new one has a name. It is
    // wanted so.
    void OKButton_Click() {
        app_.document.bInvoiceStyle = Option2;
        close(true);
    }
    void CancelButton_Click() { close(false); }

private:
    void close(bool chosen) {
        app_.mainFrm.bDatabaseTypeChosen = chosen;
        unloaded = true;
    }

    app::App& app_;
};

} // namespace storage
