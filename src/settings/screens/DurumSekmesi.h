#pragma once

#include "DurumStore.h"
#include "ScreenContext.h"

#include <memory>
#include <QWidget>

class QListWidget;
namespace Ui {
class DurumSekmesi;
}

namespace kuyum {

/// The tab of the two lists of status codes. A code is stored when it is typed.
class DurumSekmesi : public QWidget
{
    Q_OBJECT

public:
    explicit DurumSekmesi(const ScreenContext &context, QWidget *parent = nullptr);
    ~DurumSekmesi() override;

    void load();
    void focusFirst();

Q_SIGNALS:
    /// What was stored just now.
    void saved(const QString &what);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill(DurumTuru tur);
    void ekle(DurumTuru tur);
    void sil(DurumTuru tur);
    QListWidget *liste(DurumTuru tur) const;

    ScreenContext m_context;
    std::unique_ptr<Ui::DurumSekmesi> m_ui;
};

} // namespace kuyum
