#pragma once

#include "RaporContext.h"
#include "SiparisYariMamul.h"

#include <memory>
#include <QDialog>

namespace Ui {
class Rapor_Ymamul;
}

namespace kuyum {

/// What one order needs of the foundry: its models with their gold, and the
/// molds.
class Rapor_Ymamul : public QDialog
{
    Q_OBJECT

public:
    /// Tells the user when there is no such order, and stays empty then.
    Rapor_Ymamul(const RaporContext &context, qint32 SecilenNo, QWidget *parent = nullptr);
    ~Rapor_Ymamul() override;

    /// The order was changed without being saved: the figures know nothing of that.
    void tellUnsaved();

private:
    void connectControls();
    void open(qint32 SecilenNo);
    void print();

    RaporContext m_context;
    std::unique_ptr<Ui::Rapor_Ymamul> m_ui;
    std::optional<SiparisBasligi> m_siparis; ///< nothing: there is no such order
    std::unique_ptr<SiparisYariMamul> m_rapor;
};

} // namespace kuyum
