#pragma once

#include "AyarStore.h"
#include "TanimEkrani.h"

#include <memory>

namespace Ui {
class Tanim_Ayar;
}

namespace kuyum {

/// Definition of the karats.
class Tanim_Ayar : public TanimEkrani
{
    Q_OBJECT

public:
    explicit Tanim_Ayar(const ScreenContext &context, QWidget *parent = nullptr);
    ~Tanim_Ayar() override;

private:
    bool hasKey() const override;
    bool pickKey() override;
    Found readRow() override;
    QList<RecordRows> recordRows() const override;
    bool writeRow() override;
    QString savedWhat() const override;
    bool mayRemove() override;
    bool removeRow() override;
    double Milyem() const;

    AyarStore m_store;
    std::unique_ptr<Ui::Tanim_Ayar> m_ui;
};

} // namespace kuyum
