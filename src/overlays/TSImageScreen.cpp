#include "overlays/TSImageScreen.h"

thread_local const TSImageScreen *TSImageScreen::s_current = nullptr;
