#pragma once

#include "RaporContext.h"
#include "SiparisTaslari.h"

#include <memory>
#include <QDialog>

namespace Ui {
class Rapor_Siparis2;
}

namespace kuyum {

/// The stones of one order with their weight, cost and margin.
class Rapor_Siparis2 : public QDialog
{
    Q_OBJECT

public:
    /// Tells the user when there is no such order, and stays empty then.
    Rapor_Siparis2(const RaporContext &context, qint32 SecilenNo, QWidget *parent = nullptr);
    ~Rapor_Siparis2() override;

    /// The order was changed without being saved: the figures know nothing of that.
    void tellUnsaved();

private:
    void setUpLook();
    void open(qint32 SecilenNo);
    void DetayDoldur();
    void showRates();
    void print();

    RaporContext m_context;
    std::unique_ptr<Ui::Rapor_Siparis2> m_ui;
    std::optional<SiparisBasligi> m_siparis; ///< nothing: there is no such order
    std::unique_ptr<SiparisTaslari> m_taslar;
};

} // namespace kuyum
