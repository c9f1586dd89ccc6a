#include "ScreenServices.h"

#include "Liste_Combo.h"

using namespace Qt::StringLiterals;

namespace kuyum {

ScreenServices::ScreenServices(Oturum &oturum, Messages &messages)
    : oturum(oturum),
      messages(messages),
      openList(lookupOpener(oturum, messages)),
      settings(u"Kuyum"_s, u"kuyum"_s),
      printers(settings),
      viewer(printers, messages),
      labelPrinter(printers),
      excel(spreadsheet, messages)
{
}

} // namespace kuyum
