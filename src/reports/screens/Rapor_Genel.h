#pragma once

#include "RaporContext.h"

#include <memory>
#include <QDialog>

namespace Ui {
class Rapor_Genel;
}

namespace kuyum {

class KontrolSekmesi;
class UretimSekmesi;

/// Production tracking: order control and production report. `RaporTuru` says
/// on which of its tabs it opens.
class Rapor_Genel : public QDialog
{
    Q_OBJECT

public:
    explicit Rapor_Genel(const RaporContext &context, QWidget *parent = nullptr);
    ~Rapor_Genel() override;

    /// Leaves the screen, unless the user wants to keep what is not saved yet.
    void reject() override;

private:
    void showTab();

    RaporContext m_context;
    std::unique_ptr<Ui::Rapor_Genel> m_ui;
    KontrolSekmesi *m_kontrol;
    UretimSekmesi *m_uretim;
};

} // namespace kuyum
