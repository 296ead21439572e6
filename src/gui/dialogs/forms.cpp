#include "gui/dialogs/forms.h"

#include "gui/dialogs/databaseTypeFrmView.h"
#include "gui/dialogs/designFrmView.h"
#include "gui/dialogs/disclaimFrmView.h"
#include "gui/dialogs/entryFrmView.h"
#include "gui/dialogs/formulateFrmView.h"
#include "gui/dialogs/mailFrmView.h"
#include "gui/dialogs/repeatFrmView.h"
#include "gui/dialogs/serialFrmView.h"
#include "gui/dialogs/totalsFrmView.h"
#include "gui/dialogs/versionsFrmView.h"
#include "gui/labels/labelFrmView.h"
#include "gui/print/layoutPageSetupFrmView.h"
#include "gui/print/reportChoicesFrmView.h"
#include "gui/print/reportPageSetupView.h"
#include "gui/search/coloursFrmView.h"
#include "gui/search/duplicatesFrmView.h"
#include "gui/search/makeCodeFrmView.h"
#include "gui/search/replaceFrmView.h"
#include "gui/search/searchFrmView.h"
#include "gui/search/serialCheckFrmView.h"
#include "gui/search/setValuesFrmView.h"
#include "gui/summary/statisticsFrmView.h"
#include "gui/tables/exportFrmView.h"
#include "gui/tables/importFrmView.h"
#include "gui/tables/pasteFrmView.h"

namespace gui {

namespace {

// A form is made anew for each show. What its loading raises goes to the handler that asked for it.
template <typename View>
QtPlatform::FormFactory shown(app::App& app, EventBoundary& events) {
    return [&app, &events](QWidget* owner) { View(app, events, owner).showModal(); };
}

} // namespace

void registerForms(QtPlatform& platform, app::App& app, EventBoundary& events) {
    platform.registerForm("disclaimFrm", [](QWidget* owner) { disclaimFrmView(owner).exec(); });
    platform.registerForm("databaseTypeFrm", shown<databaseTypeFrmView>(app, events));
    platform.registerForm("designFrm", shown<designFrmView>(app, events));
    platform.registerForm("entryFrm", shown<entryFrmView>(app, events));
    platform.registerForm("formulateFrm", shown<formulateFrmView>(app, events));
    platform.registerForm("TotalsFrm", shown<TotalsFrmView>(app, events));
    platform.registerForm("reportPageSetup", shown<reportPageSetupView>(app, events));
    platform.registerForm("reportChoicesFrm", shown<reportChoicesFrmView>(app, events));
    platform.registerForm("layoutPageSetupFrm", shown<layoutPageSetupFrmView>(app, events));
    platform.registerForm("mailFrm", shown<mailFrmView>(app, events));
    platform.registerForm("pasteFrm", shown<pasteFrmView>(app, events));
    platform.registerForm("importFrm", shown<importFrmView>(app, events));
    platform.registerForm("exportFrm", shown<exportFrmView>(app, events));
    platform.registerForm("repeatFrm", shown<repeatFrmView>(app, events));
    platform.registerForm("replaceFrm", [&](QWidget* owner) { replaceFrmView(app, events, owner).exec(); });
    platform.registerForm("searchFrm", [&](QWidget* owner) { searchFrmView(app, events, owner).exec(); });
    platform.registerForm("versionsFrm", shown<versionsFrmView>(app, events));
    platform.registerForm("labelFrm", shown<labelFrmView>(app, events));
    platform.registerForm("serialFrm", shown<serialFrmView>(app, events));
    platform.registerForm("setValuesFrm", shown<setValuesFrmView>(app, events));
    platform.registerForm("makeCodeFrm", shown<makeCodeFrmView>(app, events));
    platform.registerForm("coloursFrm", shown<coloursFrmView>(app, events));
    platform.registerForm("duplicatesFrm", shown<duplicatesFrmView>(app, events));
    platform.registerForm("statisticsFrm", shown<statisticsFrmView>(app, events));
    platform.registerForm("serialCheckFrm", shown<serialCheckFrmView>(app, events));
}

} // namespace gui
