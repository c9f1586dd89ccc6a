#pragma once

#include "OrderLookups.h"
#include "OrderSlip.h"
#include "ScreenContext.h"
#include "SiparisKontrol.h"
#include "SiparisStore.h"

#include <functional>
#include <memory>
#include <QDialog>

class QSettings;
namespace Ui {
class Giris_Siparis;
}

namespace kuyum {

class ModelEntry;
class SavedLine;
class SiparisModel;

/// Opens a report on a stored order, whose number is the answer `SecilenNo` of
/// the screen; handed in by the program. `degisti`: the screen shows changes
/// that are not stored, so that the report does not know them.
using OrderReportOpener = std::function<void(QWidget *parent, qint32 SecilenNo, bool degisti)>;

struct OrderReports
{
    OrderReportOpener tas;    ///< its stones
    OrderReportOpener ymamul; ///< its semi-finished pieces
};

/// Order entry. In the order-number state only the number and the list live;
/// in the editing state an order, found or new, stands on the screen.
class Giris_Siparis : public QDialog
{
    Q_OBJECT

public:
    /// The settings remember how the slip is wanted.
    Giris_Siparis(const ScreenContext &context, QSettings &settings, OrderReports reports,
                  QWidget *parent = nullptr);
    ~Giris_Siparis() override;

    /// Leaves the screen, unless the user wants to keep what is not saved yet.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    template <typename Action>
    void bind(QWidget *button, Action action);
    void connectControls();
    void connectGrid();
    void setUpLook();
    void fillChoices();
    void limitEntries();
    void enterPressed();

    // States
    void TusKapa();
    void TusAC();
    void setEditing(bool on);
    bool isEditing() const;
    bool hasChanges() const;
    bool mayLeave();
    void abandon();

    // Finding and filling
    void numberEntered();
    void SiparisBul(double number);
    QString whyNotSaved(double number) const;
    void SiparisDoldur(const Siparis &siparis);
    void pickOrder();
    void tellKeptLines();
    void FirmaBul();
    void showCustomer(const OrderCustomer &firma);
    void customerTyped();

    // The grid
    void Gridbosalt();
    void removeRow(int row);
    void setQuickEntry(bool on);
    void pickFixedColour();
    bool takeScanPastControls(QKeyEvent *event);
    enum class PictureError { Tell, Skip };
    void ResimGoster(int row, PictureError onError);
    void showWarning(const QString &text);

    // Saving
    Siparis collect() const;
    bool check(const Siparis &siparis);
    bool karatFits();
    void showFault(const OrderFault &fault);
    bool holdsOwnNumber();
    void showNumber(const Siparis &siparis);
    void save();
    void saveAsNew();
    void takeStored();
    void removeOrder();
    void afterSave(const Siparis &siparis, const QString &kind);
    QString removalQuestion() const;

    void openReport(const OrderReportOpener &report);

    // The slip
    void readSlipChoice();
    void keepSlipChoice();
    SlipChoice slipChoice() const;
    void showAdet(int adet);
    void nextAdet();
    void print();
    void showSlip(const Siparis &siparis);

    ScreenContext m_context;
    QSettings &m_settings;
    OrderReports m_reports;
    SiparisStore m_store;
    OrderLookups m_lookups;
    std::unique_ptr<Ui::Giris_Siparis> m_ui;
    SiparisModel *m_model;
    ModelEntry *m_modelEntry;
    SavedLine *m_saved;
    OrderCustomer m_customer;    ///< the customer on the screen
    qint32 m_stored = 0;         ///< the stored order that the screen holds; 0: none
    Siparis m_opened;            ///< the screen as it was opened
    QString m_notice;            ///< stands while the order does, where nothing else warns
    LoadedRows m_loaded;         ///< the order as it stood when it was opened
    QList<KeptLine> m_keptLines; ///< of the order, without those of its rows
};

} // namespace kuyum
