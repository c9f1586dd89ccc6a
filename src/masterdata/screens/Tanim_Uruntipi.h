#pragma once

#include "TanimEkrani.h"
#include "UrunTipiStore.h"

#include <memory>

namespace Ui {
class Tanim_Uruntipi;
}

namespace kuyum {

/// Definition of the product types. Without a number, Enter begins a new one.
class Tanim_Uruntipi : public TanimEkrani
{
    Q_OBJECT

public:
    explicit Tanim_Uruntipi(const ScreenContext &context, QWidget *parent = nullptr);
    ~Tanim_Uruntipi() override;

private:
    bool hasKey() const override;
    bool pickKey() override;
    Found readRow() override;
    bool mayWrite() override;
    QList<RecordRows> recordRows() const override;
    bool writeRow() override;
    QString savedWhat() const override;
    bool mayRemove() override;
    bool removeRow() override;
    double TipID() const;

    UrunTipiStore m_store;
    std::unique_ptr<Ui::Tanim_Uruntipi> m_ui;
};

} // namespace kuyum
