#pragma once

#include "ParametreServices.h"
#include "ScreenContext.h"

#include <memory>
#include <QDialog>

namespace Ui {
class Parametreler;
}

namespace kuyum {

class AyarSekmesi;
class BakimSekmesi;
class DurumSekmesi;
class YedekSekmesi;

/// The settings of the company: its paths, printer and scale, the lists of
/// status codes, and the care of its database, a tab each.
class Parametreler : public QDialog
{
    Q_OBJECT

public:
    Parametreler(const ScreenContext &context, const ParametreServices &services,
                 QWidget *parent = nullptr);
    ~Parametreler() override;

    /// Leaves the screen, unless the user wants to keep what is not saved yet.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setUpTabs();
    void connectControls();
    void load();
    void enterTab();
    void enterPressed();
    bool mayLeave();
    void kaydet();
    void tellNewCompany();
    void restore();

    ScreenContext m_context;
    std::unique_ptr<Ui::Parametreler> m_ui;
    AyarSekmesi *m_ayar;
    DurumSekmesi *m_durum;
    YedekSekmesi *m_yedek;
    BakimSekmesi *m_bakim;
};

} // namespace kuyum
