#pragma once

#include "Database.h"

#include <memory>
#include <QDate>
#include <QString>

namespace kuyum {

/// What the whole run knows. Made once, when the program starts, and handed on
/// by reference.
struct Oturum
{
    QString kayitYolu;                    ///< the registry's file
    std::unique_ptr<Database> Veritabani; ///< the chosen company's open database
    QString SonSQL;                       ///< the last SQL text built, as the product writes it
    qint32 SirketKodu = 0;
    QString SirketAdi;
    QString DataYolu;     ///< as the registry has it
    QString ResimYolu;    ///< the picture folder, resolved to this system's path
    QString Transferyolu; ///< the transfer folder, resolved to this system's path
    QString KullaniciAdi;
    qint32 KullaniciNo = 0;
    QDate CalismaTarihi;
    bool GirisTamam = false;
    QString RaporTuru;

    /// Runs a SELECT on the company and keeps its text in SonSQL.
    Recordset sorgula(const QString &sql)
    {
        SonSQL = sql;
        return Veritabani->query(sql);
    }
    /// Runs a statement that gives no rows, and keeps its text as well.
    void calistir(const QString &sql)
    {
        SonSQL = sql;
        Veritabani->execute(sql);
    }
};

} // namespace kuyum
