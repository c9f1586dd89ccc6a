#include "MenuTable.h"

MenuScreens menuTable(Oturum &, Messages &)
{
    return {};
}
