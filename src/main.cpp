#include "core/Application.h"
#include "core/Flow.h"
#include "core/Navigation.h"
#include "core/Screens.h"

int main(int argc, char** argv) {
    Application application(argc, argv);
    RegisterScreens(TheNavigation());
    TheNavigation().InstallSeams();
    const int exitCode = Flow::Main(application.Instance());
    return Flow::HasWindow() ? Application::exec() : exitCode;
}
