#include "YedekSekmesi.h"

#include "CompanyRestore.h"
#include "Dates.h"
#include "Guarded.h"
#include "ListCellDelegate.h"
#include "ListHeading.h"
#include "Oturum.h"
#include "Schema.h"
#include "StoppableWork.h"
#include "Theme.h"
#include "ui_YedekSekmesi.h"
#include "YedekModel.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace kuyum {

/// Said of a backup whose bytes cannot be compared with those that were written.
static QString withoutDigest()
{
    return u"Bu yedeğin alındığı gün yazılan özeti yok: sonradan değişip değişmediği bilinemez."_s;
}

YedekSekmesi::YedekSekmesi(const ScreenContext &context, QWidget *parent)
    : QWidget(parent),
      m_context(context),
      m_ui(std::make_unique<Ui::YedekSekmesi>()),
      m_model(new YedekModel(this))
{
    m_ui->setupUi(this);
    setUpList();
    connectControls();
}

YedekSekmesi::~YedekSekmesi() = default;

void YedekSekmesi::setUpList()
{
    QTableView *list = m_ui->Yedekler;
    list->setModel(m_model);
    list->setHorizontalHeader(new ListHeading(list));
    list->setItemDelegate(new ListCellDelegate(list));
    list->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    list->verticalHeader()->setDefaultSectionSize(list->fontMetrics().height() +
                                                  ListCellDelegate::lineSpace);
    list->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->horizontalHeader()->setStretchLastSection(true);
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, themeColors(quiet).muted);
    m_ui->yedekNotu->setPalette(quiet);
}

void YedekSekmesi::connectControls()
{
    Messages &messages = m_context.messages;
    connect(m_ui->cmdYedekle, &QPushButton::clicked, this,
            [this, &messages] { guarded(messages, this, [this] { make(); }); });
    connect(m_ui->cmdDenetle, &QPushButton::clicked, this,
            [this, &messages] { guarded(messages, this, [this] { check(); }); });
    connect(m_ui->cmdGeriYukle, &QPushButton::clicked, this, &YedekSekmesi::restoreAsked);
    connect(m_ui->Yedekler->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &YedekSekmesi::showChoice);
}

void YedekSekmesi::load()
{
    const QString database = m_context.oturum.Veritabani->path();
    m_ui->yedekNotu->setText(u"Yedeklerin klasörü: "_s +
                             QDir::toNativeSeparators(backupFolder(database)));
    guarded(m_context.messages, this, [&] { m_model->show(backups(database)); });
    m_ui->Yedekler->setCurrentIndex(m_model->index(0, 0));
    showChoice();
}

void YedekSekmesi::focusFirst()
{
    const bool any = m_model->rowCount() > 0;
    (any ? static_cast<QWidget *>(m_ui->Yedekler) : m_ui->cmdYedekle)->setFocus(Qt::TabFocusReason);
}

std::optional<BackupFile> YedekSekmesi::chosen() const
{
    const QModelIndex current = m_ui->Yedekler->currentIndex();
    if (!current.isValid())
        return std::nullopt;
    return m_model->backup(current.row());
}

void YedekSekmesi::showChoice()
{
    for (QPushButton *button : {m_ui->cmdDenetle, m_ui->cmdGeriYukle})
        button->setEnabled(chosen().has_value());
}

/// Long work on the backups; false when the user stopped it, who is told that
/// nothing was done.
bool YedekSekmesi::work(const QString &title, const QString &text, const Work &work)
{
    try {
        StoppableWork box(this, title, text);
        work(box.progress());
        return true;
    } catch (const Cancelled &cancelled) {
        m_context.messages.say(this, cancelled.text(), MessageIcon::Information);
        return false;
    }
}

void YedekSekmesi::make()
{
    QString made;
    const bool done = work(
        u"Yedekleme"_s, u"Veri tabanının yedeği alınıyor..."_s, [&](const WorkProgress &progress) {
            made = makeBackup(*m_context.oturum.Veritabani, BackupKind::Manual, progress);
        });
    if (!done)
        return;
    load();
    m_context.messages.say(this,
                           u"Yedek alındı ve denetlendi:\n\n"_s + QDir::toNativeSeparators(made),
                           MessageIcon::Information);
}

bool YedekSekmesi::isSound(const BackupFile &backup)
{
    return work(u"Denetleme"_s, u"Yedek denetleniyor..."_s,
                [&](const WorkProgress &progress) { checkBackup(backup.path, progress); });
}

void YedekSekmesi::check()
{
    const std::optional<BackupFile> backup = chosen();
    if (!backup.has_value() || !isSound(*backup))
        return;
    m_context.messages.say(this,
                           formatDateTime(backup->made) +
                               u" tarihli yedek sağlam, geri yüklenebilir."_s +
                               (hasDigest(backup->path) ? QString() : u"\n\n"_s + withoutDigest()),
                           MessageIcon::Information);
}

/// A damaged backup is refused before anything is asked or touched.
bool YedekSekmesi::mayRestore(const BackupFile &backup)
{
    if (!isSound(backup))
        return false;
    QString question =
        u"VERİ TABANI %1 TARİHLİ YEDEKTEKİ DURUMUNA DÖNECEK.\n\nO GÜNDEN SONRA GİRİLENLER "
        "PROGRAMDA GÖRÜNMEZ; ŞİMDİKİ VERİ TABANI AYRI BİR DOSYADA SAKLANIR.\n\n"_s.arg(
            formatDateTime(backup.made));
    if (!hasDigest(backup.path))
        question += withoutDigest() + u"\n\n"_s;
    return m_context.messages.ask(this, question + u"YEDEK GERİ YÜKLENSİN Mİ ?"_s,
                                  MessageIcon::Exclamation, u"YEDEĞİ GERİ YÜKLEME"_s,
                                  MessageAnswer::No);
}

void YedekSekmesi::restore()
{
    const std::optional<BackupFile> backup = chosen();
    if (!backup.has_value() || !mayRestore(*backup))
        return;
    Oturum &oturum = m_context.oturum;
    const QString database = oturum.Veritabani->path();
    QString kept;
    bool done = false;
    guarded(m_context.messages, this, [&] {
        done = work(u"Yedeği geri yükleme"_s, u"Yedek geri yükleniyor..."_s,
                    [&](const WorkProgress &progress) {
                        kept = yedektenDon(oturum, backup->path, progress);
                    });
    });
    if (!reopen(database))
        return;
    load();
    if (!done)
        return;
    Q_EMIT restored();
    // Nothing was kept of a database that had been removed under the program.
    const QString place = kept.isEmpty() ? QString()
                                         : u" Önceki veri tabanı burada saklanıyor:\n\n"_s +
                                               QDir::toNativeSeparators(kept);
    m_context.messages.say(
        this,
        u"Yedek geri yüklendi."_s + place +
            u"\n\nKullanıcı, yetkiler ve günün kurları için programı kapatıp yeniden açın."_s,
        MessageIcon::Information);
}

/// No screen can work without a database: it opens again, or the program ends.
bool YedekSekmesi::reopen(const QString &path)
{
    Oturum &oturum = m_context.oturum;
    const QString question = u"Veri tabanı yeniden açılamadı. Bir daha denensin mi ?\n\nHayır, "
                             "programı kapatır."_s;
    while (oturum.Veritabani == nullptr) {
        const bool opened =
            guarded(m_context.messages, this, [&] { oturum.Veritabani = openCompany(path); });
        if (opened)
            break;
        if (!m_context.messages.ask(this, question, MessageIcon::Critical, u"HATA"_s)) {
            QCoreApplication::exit(1);
            return false;
        }
    }
    return true;
}

} // namespace kuyum
