#include "MenuTable.h"

#include "Giris_Siparis.h"
#include "ScreenServices.h"

namespace {

constexpr int orderEntry = 7;

} // namespace

MenuScreens menuTable(ScreenServices &services)
{
    return {
        {orderEntry,
         [&services](QWidget *parent) {
             return std::make_unique<Giris_Siparis>(
                 OrderScreenContext{services.oturum, services.messages, services.openList,
                                    services.viewer},
                 parent);
         }},
    };
}
