#include "DurumSekmesi.h"

#include "Guarded.h"
#include "ListCellDelegate.h"
#include "Theme.h"
#include "ui_DurumSekmesi.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace kuyum {

DurumSekmesi::DurumSekmesi(const ScreenContext &context, QWidget *parent)
    : QWidget(parent), m_context(context), m_ui(std::make_unique<Ui::DurumSekmesi>())
{
    m_ui->setupUi(this);
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, themeColors(quiet).muted);
    m_ui->durumNotu->setPalette(quiet);
    const std::initializer_list<std::tuple<DurumTuru, QPushButton *, QPushButton *>> buttons = {
        {DurumTuru::Siparis, m_ui->cmdEkle1, m_ui->cmdsil1},
        {DurumTuru::Uretim, m_ui->cmdEkle2, m_ui->cmdsil2}};
    for (const auto &[tur, add, remove] : buttons) {
        liste(tur)->installEventFilter(this);
        liste(tur)->setItemDelegate(new ListCellDelegate(this));
        connect(add, &QPushButton::clicked, this,
                [this, tur = tur] { guarded(m_context.messages, this, [&] { ekle(tur); }); });
        connect(remove, &QPushButton::clicked, this,
                [this, tur = tur] { guarded(m_context.messages, this, [&] { sil(tur); }); });
    }
}

DurumSekmesi::~DurumSekmesi() = default;

QListWidget *DurumSekmesi::liste(DurumTuru tur) const
{
    return tur == DurumTuru::Siparis ? m_ui->Durum1 : m_ui->Durum2;
}

void DurumSekmesi::load()
{
    for (const DurumTuru tur : {DurumTuru::Siparis, DurumTuru::Uretim})
        guarded(m_context.messages, this, [&] { fill(tur); });
}

void DurumSekmesi::fill(DurumTuru tur)
{
    liste(tur)->clear();
    liste(tur)->addItems(DurumStore(m_context.oturum, tur).kodlar());
    liste(tur)->setCurrentRow(0);
}

void DurumSekmesi::focusFirst()
{
    m_ui->Durum1->setFocus(Qt::TabFocusReason);
}

bool DurumSekmesi::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const DurumTuru tur = watched == m_ui->Durum1 ? DurumTuru::Siparis : DurumTuru::Uretim;
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() == Qt::Key_Insert)
        guarded(m_context.messages, this, [&] { ekle(tur); });
    else if (key->key() == Qt::Key_Delete && !key->isAutoRepeat())
        guarded(m_context.messages, this, [&] { sil(tur); });
    else
        return QWidget::eventFilter(watched, event);
    return true;
}

void DurumSekmesi::ekle(DurumTuru tur)
{
    DurumStore store(m_context.oturum, tur);
    const QString title =
        tur == DurumTuru::Siparis ? u"Sipariş Durum Kodu"_s : u"Uretim Durum Kodu"_s;
    const std::optional<QString> answer =
        m_context.messages.input(this, u"YENI DURUM KODUNU GIRIN"_s, title, {});
    const QString kod = answer.value_or(QString()).trimmed();
    if (kod.isEmpty())
        return;
    if (kod.size() > store.enUzun()) {
        m_context.messages.say(this,
                               u"Durum kodu en fazla %1 karakter olabilir."_s.arg(store.enUzun()),
                               MessageIcon::Exclamation);
        return;
    }
    if (!store.ekle(kod)) {
        m_context.messages.say(this, u"GİRİLEN BİLGİ TANIMLI..."_s, MessageIcon::Exclamation);
        return;
    }
    fill(tur);
    const QList<QListWidgetItem *> added = liste(tur)->findItems(kod, Qt::MatchExactly);
    liste(tur)->setCurrentItem(added.isEmpty() ? nullptr : added.last());
    liste(tur)->setFocus(Qt::TabFocusReason);
    Q_EMIT saved(kod + u" durumu"_s);
}

/// A code that lines of orders have stays: its orders would show a status that
/// no list knows.
void DurumSekmesi::sil(DurumTuru tur)
{
    const QListWidgetItem *item = liste(tur)->currentItem();
    if (item == nullptr)
        return;
    const QString kod = item->text();
    DurumStore store(m_context.oturum, tur);
    if (store.kullanilan(kod)) {
        m_context.messages.say(this, kod + u" SİPARİŞLERDE KULLANILIYOR, SİLİNEMEZ..."_s,
                               MessageIcon::Critical, u"HATA"_s);
        return;
    }
    if (!m_context.messages.ask(this, kod + u" SİLİNECEK..."_s, MessageIcon::Exclamation, {},
                                MessageAnswer::No))
        return;
    const int row = liste(tur)->currentRow();
    store.sil(kod);
    fill(tur);
    liste(tur)->setCurrentRow(qMin(row, liste(tur)->count() - 1));
}

} // namespace kuyum
