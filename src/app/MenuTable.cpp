#include "MenuTable.h"

#include "Giris_Siparis.h"
#include "ScreenServices.h"
#include "Tanim_Tas.h"

namespace {

/// The factory of a screen that works with the common services.
template <typename Screen>
ScreenFactory screen(ScreenServices &services)
{
    return [&services](QWidget *parent) {
        return std::make_unique<Screen>(services.context(), parent);
    };
}

} // namespace

MenuScreens menuTable(ScreenServices &services)
{
    return {
        {0, screen<Tanim_Tas>(services)},
        {7, screen<Giris_Siparis>(services)},
    };
}
