#include "MenuTable.h"

#include "CameraFrames.h"
#include "DatabaseOpening.h"
#include "Dosya_Yenile.h"
#include "FrmWebcam.h"
#include "Giris_Kur.h"
#include "Giris_Siparis.h"
#include "Parametreler.h"
#include "Rapor_Genel.h"
#include "Rapor_Siparis.h"
#include "Rapor_Siparis2.h"
#include "Rapor_Ymamul.h"
#include "Schema.h"
#include "ScreenServices.h"
#include "Tanim_Ayar.h"
#include "Tanim_Barkod.h"
#include "Tanim_Firma.h"
#include "Tanim_Kalip.h"
#include "Tanim_Katalog.h"
#include "Tanim_Model.h"
#include "Tanim_Renk.h"
#include "Tanim_Tas.h"
#include "Tanim_Uruntipi.h"
#include "Tanim_User.h"

namespace kuyum {

namespace {

/// The factory of a screen that works with the common services.
template <typename Screen>
ScreenFactory screen(ScreenServices &services)
{
    return [&services](QWidget *parent) {
        return std::make_unique<Screen>(services.context(), parent);
    };
}

/// The same for one that remembers how the user wants it.
template <typename Screen>
ScreenFactory rememberingScreen(ScreenServices &services)
{
    return [&services](QWidget *parent) {
        return std::make_unique<Screen>(services.context(), services.settings, parent);
    };
}

/// The same for one that works with the reports' services.
template <typename Screen>
ScreenFactory reportScreen(ScreenServices &services)
{
    return [&services](QWidget *parent) {
        return std::make_unique<Screen>(services.reportContext(), parent);
    };
}

CameraOpener camera(ScreenServices &services)
{
    return [&services](QWidget *parent, const QString &Secilen) {
        return webcamFrame({services.messages, services.settings, openCamera}, parent, Secilen);
    };
}

ScreenFactory moldScreen(ScreenServices &services)
{
    return [&services](QWidget *parent) {
        return std::make_unique<Tanim_Kalip>(services.context(), camera(services), parent);
    };
}

ScreenFactory modelScreen(ScreenServices &services)
{
    return [&services](QWidget *parent) {
        return std::make_unique<Tanim_Model>(services.context(), services.labelPrinter,
                                             camera(services), parent);
    };
}

/// Opens a report on an order, modally.
template <typename Report>
OrderReportOpener orderReport(ScreenServices &services)
{
    return [&services](QWidget *parent, qint32 SecilenNo, bool degisti) {
        Report report(services.reportContext(), SecilenNo, parent);
        if (degisti)
            report.tellUnsaved();
        report.exec();
    };
}

ScreenFactory orderScreen(ScreenServices &services)
{
    return [&services](QWidget *parent) {
        return std::make_unique<Giris_Siparis>(services.context(), services.settings,
                                               OrderReports{orderReport<Rapor_Siparis2>(services),
                                                            orderReport<Rapor_Ymamul>(services)},
                                               parent);
    };
}

ScreenFactory settingsScreen(ScreenServices &services)
{
    return [&services](QWidget *parent) {
        const auto open = [&messages = services.messages](QWidget *owner, const QString &path) {
            return openTakenOver(owner, messages, path, openCompany);
        };
        return std::make_unique<Parametreler>(services.context(),
                                              ParametreServices{open, services.printers}, parent);
    };
}

} // namespace

MenuScreens menuTable(ScreenServices &services)
{
    return {
        {0, screen<Tanim_Tas>(services)},
        {1, moldScreen(services)},
        {2, screen<Tanim_Uruntipi>(services)},
        {3, modelScreen(services)},
        {4, screen<Tanim_Firma>(services)},
        {5, rememberingScreen<Giris_Kur>(services)},
        {6,
         [&services](QWidget *parent) {
             return std::make_unique<Tanim_Barkod>(services.context(), services.labelPrinter,
                                                   parent);
         }},
        {7, orderScreen(services)},
        {8, screen<Tanim_Ayar>(services)},
        {9, screen<Tanim_Renk>(services)},
        {10, screen<Tanim_Katalog>(services)},
        {11, reportScreen<Rapor_Siparis>(services)},
        {12, reportScreen<Rapor_Genel>(services)},
        {13, reportScreen<Rapor_Genel>(services)},
        {17, screen<Tanim_User>(services)},
        {18, settingsScreen(services)},
        {19, screen<Dosya_Yenile>(services)},
    };
}

} // namespace kuyum
