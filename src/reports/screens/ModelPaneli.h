#pragma once

#include <memory>
#include <QWidget>

namespace Ui {
class ModelPaneli;
}

namespace kuyum {

struct Oturum;

/// A model beside the lines that it stands in: its picture, its product type,
/// its molds and its stones.
class ModelPaneli : public QWidget
{
public:
    explicit ModelPaneli(QWidget *parent = nullptr);
    ~ModelPaneli() override;

    /// Must outlive it; called once.
    void setOturum(Oturum &oturum) { m_oturum = &oturum; }
    /// The model as the product type of the row that it stands in. An empty
    /// model empties it. Throws DatabaseError.
    void goster(const QString &model, const QString &KisaAD);

private:
    Oturum *m_oturum = nullptr;
    std::unique_ptr<Ui::ModelPaneli> m_ui;
};

} // namespace kuyum
