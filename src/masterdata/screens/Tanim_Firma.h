#pragma once

#include "FirmaStore.h"
#include "TanimEkrani.h"

#include <memory>

namespace Ui {
class Tanim_Firma;
}

namespace kuyum {

/// Definition of the customers. Insert on `Ulke` defines a country.
class Tanim_Firma : public TanimEkrani
{
    Q_OBJECT

public:
    explicit Tanim_Firma(const ScreenContext &context, QWidget *parent = nullptr);
    ~Tanim_Firma() override;

private:
    bool hasKey() const override;
    bool pickKey() override;
    Found readRow() override;
    QList<RecordRows> recordRows() const override;
    bool writeRow() override;
    QString savedWhat() const override;
    bool mayRemove() override;
    bool removeRow() override;
    void emptyForm() override;
    void keyPressEvent(QKeyEvent *event) override;

    qint32 Firkod() const;
    void DosyadanAta(const Firma &firma);
    void showCountries();
    void addCountry();
    void offerCode();

    FirmaStore m_store;
    QList<Ulke> m_ulkeler;
    std::unique_ptr<Ui::Tanim_Firma> m_ui;
};

} // namespace kuyum
