#include "MenuTable.h"

#include "ScreenServices.h"

MenuScreens menuTable(ScreenServices &)
{
    return {};
}
