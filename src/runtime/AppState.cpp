#include "runtime/AppState.h"

AppState& App() {
    static AppState state;
    return state;
}

void ResetApp() {
    App() = AppState();
}
