#pragma once

#include "ScreenContext.h"

#include <memory>
#include <QWidget>

namespace Ui {
class BakimSekmesi;
}

namespace kuyum {

/// The tab that repairs all tables and lists the fields of the one at work.
class BakimSekmesi : public QWidget
{
    Q_OBJECT

public:
    explicit BakimSekmesi(const ScreenContext &context, QWidget *parent = nullptr);
    ~BakimSekmesi() override;

    void focusFirst();

Q_SIGNALS:
    /// Fields that were empty are filled.
    void repaired();

private:
    void CmdDosyaDuzenle();
    void showFields(const QString &table);

    ScreenContext m_context;
    std::unique_ptr<Ui::BakimSekmesi> m_ui;
};

} // namespace kuyum
