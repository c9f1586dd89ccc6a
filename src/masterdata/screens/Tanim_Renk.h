#pragma once

#include "RenkStore.h"
#include "TanimEkrani.h"

#include <memory>

namespace Ui {
class Tanim_Renk;
}

namespace kuyum {

/// Definition of the colours.
class Tanim_Renk : public TanimEkrani
{
    Q_OBJECT

public:
    explicit Tanim_Renk(const ScreenContext &context, QWidget *parent = nullptr);
    ~Tanim_Renk() override;

private:
    bool pickKey() override;
    Found readRow() override;
    QList<RecordRows> recordRows() const override;
    bool writeRow() override;
    QString savedWhat() const override;
    bool mayRemove() override;
    bool removeRow() override;

    RenkStore m_store;
    std::unique_ptr<Ui::Tanim_Renk> m_ui;
};

} // namespace kuyum
