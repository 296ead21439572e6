#include "gui/forms.h"

#include "gui/TotalsFrmView.h"
#include "gui/databaseTypeFrmView.h"
#include "gui/designFrmView.h"
#include "gui/disclaimFrmView.h"
#include "gui/entryFrmView.h"
#include "gui/formulateFrmView.h"
#include "gui/layoutPageSetupFrmView.h"
#include "gui/mailFrmView.h"
#include "gui/repeatFrmView.h"
#include "gui/replaceFrmView.h"
#include "gui/reportPageSetupView.h"
#include "gui/searchFrmView.h"
#include "gui/serialFrmView.h"

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
    platform.registerForm("layoutPageSetupFrm", shown<layoutPageSetupFrmView>(app, events));
    platform.registerForm("mailFrm", shown<mailFrmView>(app, events));
    platform.registerForm("repeatFrm", shown<repeatFrmView>(app, events));
    platform.registerForm("replaceFrm", [&](QWidget* owner) { replaceFrmView(app, events, owner).exec(); });
    platform.registerForm("searchFrm", [&](QWidget* owner) { searchFrmView(app, events, owner).exec(); });
    platform.registerForm("serialFrm", shown<serialFrmView>(app, events));
}

} // namespace gui
