#pragma once

#include "EtiketStore.h"
#include "LabelPrinter.h"
#include "ModelStore.h"
#include "ResimAlani.h"
#include "TanimEkrani.h"

#include <memory>

namespace Ui {
class Tanim_Model;
}

namespace kuyum {

class MalzemeModel;

/// Definition of the models: weight, materials, picture, label and sheet.
class Tanim_Model : public TanimEkrani
{
    Q_OBJECT

public:
    /// Without a camera the screen has no button for it.
    Tanim_Model(const ScreenContext &context, LabelPrinter &labelPrinter,
                const CameraOpener &openCamera = {}, QWidget *parent = nullptr);
    ~Tanim_Model() override;

private:
    void setUpLook();
    void setUpControls(const CameraOpener &openCamera);
    template <typename Action>
    void bindAction(QPushButton *button, Action action);

    bool takeLabel();
    bool pickKey() override;
    Found readRow() override;
    QList<RecordRows> recordRows() const override;
    bool writeRow() override;
    QString savedWhat() const override;
    bool mayRemove() override;
    bool removeRow() override;
    bool mayLeave() override;
    void keyEntered(QWidget *key) override;
    void emptyForm() override;

    const ModelTipi &tip() const;
    Model collect() const;
    void showModel(const Model &model);
    void BarkodGoster(qint32 Model_ID);
    void tellDangling();
    QString picturePath() const;

    // The materials
    bool takeCode(int row, const QString &code);
    bool pickCode(int row);
    void removeMaterial(int row);
    bool mayDropDangling();

    void ResimKaydet(const Model &model);
    void etiketBas(const Model &model);
    void yazdir();

    ModelStore m_store;
    LabelOutlet m_labels;
    std::unique_ptr<Ui::Tanim_Model> m_ui;
    MalzemeModel *m_materials;
    ResimAlani *m_picture = nullptr;
    QList<ModelTipi> m_types;
    EtiketAyari m_labelSettings;
    int m_pixelsPerUnit = 2;     ///< of the symbol
    QList<ModelSatiri> m_opened; ///< the materials as they were opened
};

} // namespace kuyum
