#pragma once

#include "TanimEkrani.h"
#include "TasStore.h"

#include <memory>

namespace Ui {
class Tanim_Tas;
}

namespace kuyum {

/// Definition of the stones.
class Tanim_Tas : public TanimEkrani
{
    Q_OBJECT

public:
    explicit Tanim_Tas(const ScreenContext &context, QWidget *parent = nullptr);
    ~Tanim_Tas() override;

private:
    bool pickKey() override;
    Found readRow() override;
    QList<RecordRows> recordRows() const override;
    bool writeRow() override;
    QString savedWhat() const override;
    bool mayRemove() override;
    bool removeRow() override;
    void emptyForm() override;
    void showCurrency(const QString &TasBirimi);

    TasStore m_store;
    QStringList m_currencies;
    std::unique_ptr<Ui::Tanim_Tas> m_ui;
};

} // namespace kuyum
