#include "core/Application.h"
#include "core/Flow.h"
#include "core/Navigation.h"
#include "core/ScreenNames.h"
#include "intake/frmDay.h"
#include "model/frmProfile.h"

/// The screens of the nest. A new screen is registered here and nowhere else.
static void RegisterScreens(Navigation& navigation) {
    navigation.Register<frmDay>(ScreenNames::Day);
    navigation.Register<frmProfile>(ScreenNames::Profile);
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    RegisterScreens(TheNavigation());
    TheNavigation().InstallSeams();
    const int exitCode = Flow::Main(application.Instance());
    return Flow::HasWindow() ? Application::exec() : exitCode;
}
