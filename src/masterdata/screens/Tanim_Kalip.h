#pragma once

#include "KalipStore.h"
#include "ResimAlani.h"
#include "TanimEkrani.h"

#include <memory>

namespace Ui {
class Tanim_Kalip;
}

namespace kuyum {

/// Definition of the molds, with their pictures.
class Tanim_Kalip : public TanimEkrani
{
    Q_OBJECT

public:
    /// Without a camera the screen has no button for it.
    explicit Tanim_Kalip(const ScreenContext &context, const CameraOpener &openCamera = {},
                         QWidget *parent = nullptr);
    ~Tanim_Kalip() override;

private:
    bool pickKey() override;
    Found readRow() override;
    QList<RecordRows> recordRows() const override;
    bool writeRow() override;
    QString savedWhat() const override;
    bool mayRemove() override;
    bool removeRow() override;
    void emptyForm() override;
    void showWhereabouts(const QString &KalipDur);
    QString picturePath() const;
    void ResimSil();

    KalipStore m_store;
    std::unique_ptr<Ui::Tanim_Kalip> m_ui;
    ResimAlani *m_picture = nullptr;
    QString m_storedDur; ///< also where it is none of the list's
};

} // namespace kuyum
