#pragma once

#include "ScreenContext.h"
#include "SiparisTakip.h"

#include <memory>
#include <QTimer>
#include <QWidget>

namespace Ui {
class KontrolSekmesi;
}

namespace kuyum {

class SavedLine;
class TakipModel;
struct OrderNumberEntry;

/// The tab "SIPARIS KONTROL": one order, whose lines get their statuses and
/// dates. It is empty until an order is opened.
class KontrolSekmesi : public QWidget
{
    Q_OBJECT

public:
    explicit KontrolSekmesi(const ScreenContext &context, QWidget *parent = nullptr);
    ~KontrolSekmesi() override;

    /// Whether nothing is lost by leaving; asks the user where something would be.
    bool mayLeave();
    void focusFirst();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void connectControls();
    void setUpGrid();
    bool isOpen() const { return m_Sipnum != 0; }
    void setOpen(bool on);
    void numberEntered();
    void openEntered(const OrderNumberEntry &entry);
    void pickOrder();
    void SiparisBul(double number);
    void SiparisDoldur(const TakipSiparisi &siparis);
    void tellHiddenLines(const QList<KeptLine> &lines);
    void showModel();
    void escape();
    void save();
    void tellMissing(const QList<TakipSatiri> &lines);
    void clearTab();

    ScreenContext m_context;
    SiparisTakip m_takip;
    std::unique_ptr<Ui::KontrolSekmesi> m_ui;
    TakipModel *m_model;
    SavedLine *m_saved;
    LoadedRows m_loaded; ///< its lines as they stood when it was opened
    qint32 m_Sipnum = 0; ///< the order on the tab; 0: none
    QTimer m_modelTimer; ///< a held arrow key passes lines without showing each
};

} // namespace kuyum
