#include "Tanim_Model.h"

#include "DocumentViewer.h"
#include "EntryControls.h"
#include "Guarded.h"
#include "LabelLookup.h"
#include "LabelPrinter.h"
#include "MalzemeModel.h"
#include "ModelFoyu.h"
#include "ModuleBarkod.h"
#include "Numbers.h"
#include "Oturum.h"
#include "PictureFiles.h"
#include "ProductLabel.h"
#include "Theme.h"
#include "ui_Tanim_Model.h"
#include "WindowSize.h"

#include <QScreen>

using namespace Qt::StringLiterals;

namespace kuyum {

Tanim_Model::Tanim_Model(const ScreenContext &context, LabelPrinter &labelPrinter,
                         const CameraOpener &openCamera, QWidget *parent)
    : TanimEkrani(context, parent),
      m_store(context.oturum),
      m_labels(labelPrinter, context.messages),
      m_ui(std::make_unique<Ui::Tanim_Model>()),
      m_materials(new MalzemeModel(this)),
      m_types(m_store.UrunTipleri()),
      m_labelSettings(EtiketStore(context.oturum).ayarlar())
{
    if (m_labelSettings.YaziciAdi.isEmpty())
        m_labelSettings.YaziciAdi = u"Zebra TLP2844"_s;
    m_ui->setupUi(this);
    setUpLook();
    setUpControls(openCamera);
    setUpForm({.table = u"Model"_s,
               .parts = partsOf(*m_ui),
               .keys = {m_ui->Model, m_ui->UrunTipi, m_ui->CmdBul},
               .values = {m_ui->Miktar, m_ui->Rapor, m_ui->txtsabitayar},
               .numbers = {m_ui->Miktar, m_ui->txtsabitayar},
               .whileEditing = {m_ui->cmdEkle, m_ui->Check_Barkod, m_ui->Resim, m_ui->cmdDosya,
                                m_ui->cmdCek, m_ui->ResimSil, m_ui->cmdYazdir}});
}

Tanim_Model::~Tanim_Model() = default;

template <typename Action>
void Tanim_Model::bindAction(QPushButton *button, Action action)
{
    connect(button, &QPushButton::clicked, this,
            [this, action] { guarded(context().messages, this, action); });
}

void Tanim_Model::setUpControls(const CameraOpener &openCamera)
{
    for (const ModelTipi &type : std::as_const(m_types))
        m_ui->UrunTipi->addItem(type.UrunTipi, type.TipID);
    connect(m_ui->UrunTipi, &ChoiceBox::chosen, this,
            [this] { guarded(context().messages, this, [this] { Bul(); }); });
    bindAction(m_ui->CmdBul, [this] { Bul(); });
    bindAction(m_ui->cmdEkle, [this] {
        if (m_ui->Rapor->finishEdit())
            m_ui->Rapor->SatirAc();
    });
    bindAction(m_ui->cmdYazdir, [this] { yazdir(); });

    m_ui->Rapor->setUp(m_materials, context().messages, [this](int row, const QString &code) {
        bool taken = false;
        guarded(context().messages, this, [&] { taken = takeCode(row, code); });
        return taken;
    });
    connect(m_ui->Rapor, &ModelGrid::rowRemovalAsked, this, &Tanim_Model::removeMaterial);
    connect(m_materials, &MalzemeModel::dataChanged, this, &Tanim_Model::tellDangling);
    connect(m_materials, &MalzemeModel::rowsRemoved, this, &Tanim_Model::tellDangling);

    m_picture = new ResimAlani({m_ui->Resim, m_ui->cmdDosya, m_ui->cmdCek, m_ui->ResimSil},
                               context().messages, this);
    m_picture->setCamera(openCamera, u"MODEL CEK"_s);
    connect(m_picture, &ResimAlani::removalAsked, this, [this] {
        guarded(context().messages, this, [this] {
            m_picture->ResimSil(m_ui->Model->text(), [this] { return picturePath(); });
        });
    });
}

void Tanim_Model::setUpLook()
{
    fitToScreen(*this, QSize(940, 640));
    constexpr int smallScreen = 600;
    m_pixelsPerUnit = screen()->availableSize().height() < smallScreen ? 1 : 2;

    QPalette warning = palette();
    warning.setColor(QPalette::WindowText, themeColors(warning).mark);
    m_ui->uyari->setPalette(warning);
    // A symbol is read from white, in every theme.
    QPalette paper = palette();
    paper.setColor(QPalette::Window, Qt::white);
    m_ui->pBarkod->setPalette(paper);
    constexpr int margin = 8;
    m_ui->pBarkod->setFixedHeight(symbolUnits.height() * m_pixelsPerUnit + 2 * margin);
}

// Finding

/// The name goes on to the product type, which finds.
void Tanim_Model::keyEntered(QWidget *key)
{
    if (key == m_ui->UrunTipi || key == m_ui->CmdBul || (key == m_ui->Model && takeLabel()))
        Bul();
    else if (hasKey())
        goTo(m_ui->UrunTipi);
    else
        TanimEkrani::keyEntered(key);
}

/// A scanned label names both keys.
bool Tanim_Model::takeLabel()
{
    const auto label = LabelLookup(oturum()).find(m_ui->Model->text().trimmed());
    if (!label || !label->isFound())
        return false;
    m_ui->Model->setText(label->Model);
    m_ui->UrunTipi->setCurrentIndex(-1);
    ComboSecNo(*m_ui->UrunTipi, label->TipID);
    return true;
}

bool Tanim_Model::pickKey()
{
    const LookupAnswer answer =
        context().openList(this, {u"Model Listesi"_s, m_ui->Model->text().trimmed()});
    if (answer.Secilen.isEmpty())
        return false;
    m_ui->Model->setText(answer.Secilen);
    m_ui->UrunTipi->setCurrentIndex(-1);
    ComboSecNo(*m_ui->UrunTipi, answer.SecilenTip);
    return true;
}

TanimEkrani::Found Tanim_Model::readRow()
{
    m_ui->Model->setText(m_ui->Model->text().trimmed());
    if (!hasKey()) {
        warn(u"BİR MODEL GİRİLMELİDİR..."_s);
        goTo(m_ui->Model);
        return Found::Refused;
    }
    if (m_ui->UrunTipi->currentIndex() < 0) {
        warn(u"BİR ÜRÜN TİPİ SEÇİLMELİDİR..."_s);
        return Found::Refused;
    }
    const std::optional<Model> model = m_store.ModelBul(m_ui->Model->text(), tip().TipID);
    if (model)
        showModel(*model);
    m_opened = m_materials->satirlar();
    return model ? Found::Row : Found::NewRow;
}

void Tanim_Model::showModel(const Model &model)
{
    m_ui->Model->setText(model.ad);
    BarkodGoster(model.Model_ID);
    m_picture->ResimGoster(picturePath());
    showNumber(*m_ui->Miktar, model.M_Miktar, u"##0.00");
    m_materials->fill(model.satirlar);
    m_ui->Rapor->goTo(0, MalzemeModel::tipColumn);
    tellDangling();
}

const ModelTipi &Tanim_Model::tip() const
{
    return m_types[m_ui->UrunTipi->currentIndex()];
}

QString Tanim_Model::picturePath() const
{
    return modelPicturePath(oturum().ResimYolu, m_ui->Model->text(), tip().KisaAD);
}

void Tanim_Model::BarkodGoster(qint32 Model_ID)
{
    const qreal ratio = devicePixelRatioF();
    BarkodYuzeyi surface(symbolUnits, qRound(m_pixelsPerUnit * ratio));
    try {
        BarkodCiz(surface, barcodeNumber({tip().TipID, Model_ID}));
    } catch (const std::runtime_error &) {
        // A model can be opened without a symbol; its label says what is wrong.
    }
    QPixmap symbol = QPixmap::fromImage(surface.image());
    symbol.setDevicePixelRatio(ratio);
    m_ui->pBarkod->setPixmap(symbol);
    m_ui->pBarkod->setAutoFillBackground(true);
}

/// Says that there are materials without a code, which a save leaves out.
void Tanim_Model::tellDangling()
{
    const int count = m_materials->danglingCount();
    m_ui->uyari->setText(u"%1 malzemenin taşı ya da kalıbı silinmiş, kodu boş. Kodu yeniden "
                         "girilmezse kaydederken modelden çıkar."_s.arg(count));
    m_ui->uyari->setVisible(count > 0);
}

void Tanim_Model::emptyForm()
{
    TanimEkrani::emptyForm();
    m_ui->pBarkod->clear();
    m_ui->pBarkod->setAutoFillBackground(false);
    m_ui->Rapor->abandonEdit();
    m_materials->fill({});
    m_opened = m_materials->satirlar();
    m_ui->Rapor->goTo(0, MalzemeModel::tipColumn);
    m_ui->uyari->hide();
    m_ui->Resim->showStored({});
    m_ui->txtsabitayar->setText(formatNumber(m_labelSettings.sabitayar, u"#0.0"));
}

bool Tanim_Model::mayLeave()
{
    const bool changed =
        m_materials->satirlar() != m_opened || m_ui->Rapor->isEditBegun() || m_ui->Resim->isNew();
    return !isEditing() || !changed ||
           ask(u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s, {}, MessageAnswer::No);
}

// The materials

bool Tanim_Model::takeCode(int row, const QString &code)
{
    if (code.isEmpty())
        return pickCode(row);
    const MalzemeTipi kind = m_materials->rowAt(row).tip;
    const std::optional<Malzeme> found = m_store.malzemeBul(kind, code);
    if (!found) {
        warn(u"%1 KODLU %2 BULUNAMADI ...!"_s.arg(code, kind == MalzemeTipi::Tas ? u"TAŞ"_s
                                                                                 : u"KALIP"_s));
        return false;
    }
    m_materials->setMalzeme(row, *found);
    return true;
}

bool Tanim_Model::pickCode(int row)
{
    const bool stone = m_materials->rowAt(row).tip == MalzemeTipi::Tas;
    const LookupAnswer answer =
        context().openList(this, {stone ? u"Tas Listesi"_s : u"Kalip Listesi"_s, {}});
    if (answer.Secilen.isEmpty())
        return false;
    m_materials->setMalzeme(row, {answer.SecilenID.toInt(), answer.Secilen});
    return true;
}

void Tanim_Model::removeMaterial(int row)
{
    const ModelSatiri &material = m_materials->rowAt(row);
    const int column = m_ui->Rapor->currentIndex().column();
    if (material != ModelSatiri() &&
        !context().messages.ask(this, material.Kod + u" LİSTEDEN ÇIKARILACAK..."_s,
                                MessageIcon::Information, {}, MessageAnswer::No))
        return;
    m_materials->removeRow(row);
    m_ui->Rapor->goTo(std::min(row, m_materials->rowCount() - 1), column);
}

/// A material whose stone or mold was deleted has no code to be saved under.
bool Tanim_Model::mayDropDangling()
{
    const int count = m_materials->danglingCount();
    return count == 0 ||
           ask(u"TAŞI YA DA KALIBI SİLİNMİŞ %1 MALZEME MODELDEN ÇIKACAK.\n\nKAYDEDİLSİN Mİ ?"_s.arg(
                   count),
               {}, MessageAnswer::No);
}

// Saving, removing, printing

Model Tanim_Model::collect() const
{
    return {m_ui->Model->text(), tip().TipID, number(*m_ui->Miktar), m_materials->satirlar(), 0};
}

QList<RecordRows> Tanim_Model::recordRows() const
{
    if (m_ui->UrunTipi->currentIndex() < 0)
        return {};
    return m_store.kayit(m_ui->Model->text().trimmed(), tip().TipID);
}

bool Tanim_Model::writeRow()
{
    if (!m_ui->Rapor->finishEdit() || !mayDropDangling())
        return false;
    Model model = collect();
    if (!store([&](LoadedRows &loaded) { m_store.save(model, loaded); }))
        return false;
    BarkodGoster(model.Model_ID);
    m_opened = m_materials->satirlar();
    if (m_ui->Resim->isNew())
        ResimKaydet(model);
    if (m_ui->Check_Barkod->isChecked())
        etiketBas(model);
    return true;
}

void Tanim_Model::ResimKaydet(const Model &model)
{
    const QString &folder = oturum().ResimYolu;
    const QString KisaAD = m_store.KisaADBul(model.ad, model.M_Uruntip);
    const auto target = [&] { return modelPictureTarget(folder, model.ad, KisaAD); };
    if (!m_picture->ResimKaydet(target))
        return;
    const QString shown = modelPicturePath(folder, model.ad, KisaAD);
    if (shown == target())
        return;
    context().messages.say(this,
                           u"Resim kaydedildi, ancak ana resim klasöründe aynı adla bir resim daha "
                           "var; o silinmedikçe o gösterilir:\n"_s +
                               QDir::toNativeSeparators(shown),
                           MessageIcon::Information, u"Resim Kayıt"_s);
}

/// The model is saved whatever becomes of its label.
void Tanim_Model::etiketBas(const Model &model)
{
    try {
        const EtiketAyari shown{leadingNumber(m_ui->txtsabitayar->text()), {}};
        m_labels.print(this,
                       etiketBelgesi({model.M_Uruntip,
                                      model.Model_ID,
                                      model.ad,
                                      model.M_Miktar,
                                      shown.karat(),
                                      tip().UrunTipi,
                                      {}}),
                       m_labelSettings.YaziciAdi);
    } catch (const std::exception &error) {
        context().messages.say(
            this, u"KAYIT YAPILDI, ETİKET BASILAMADI.\n\n"_s + QString::fromUtf8(error.what()),
            MessageIcon::Critical, u"HATA"_s);
    }
}

QString Tanim_Model::savedWhat() const
{
    return m_ui->Model->text() + u' ' + tip().KisaAD + u" modeli"_s;
}

bool Tanim_Model::mayRemove()
{
    return ask(m_ui->Model->text() + u"  BILGISI SILINECEK...\n\nONAYLIYORMUSUNUZ...!"_s,
               u"KAYIT SİLME"_s, MessageAnswer::No);
}

bool Tanim_Model::removeRow()
{
    return store(
        [this](LoadedRows &loaded) { m_store.remove(m_ui->Model->text(), tip().TipID, loaded); });
}

void Tanim_Model::yazdir()
{
    if (!m_ui->Rapor->finishEdit())
        return;
    const ModelFoyu sheet = modelFoyu(collect(), tip(), oturum().ResimYolu);
    if (sheet.leftOut > 0)
        warn(u"Satır Sayısı Geçiyor..."_s);
    context().viewer.show(this, sheet.document);
}

} // namespace kuyum
