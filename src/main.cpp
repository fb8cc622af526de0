#include "core/Appearance.h"
#include "core/Application.h"
#include "core/Flow.h"
#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/WindowScale.h"
#include "store/StoreThreads.h"

int main(int argc, char** argv) {
    StoreThreads::AllocateApart();
    WindowScale::TellPlatform();
    Application application(argc, argv);
    WindowScale::ClearEnvironment();
    Appearance::ReadAhead();
    RegisterScreens(TheNavigation());
    TheNavigation().InstallSeams();
    const int exitCode = Flow::Main(application.Instance());
    return Flow::HasWindow() ? Application::exec() : exitCode;
}
