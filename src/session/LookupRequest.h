#pragma once

#include <functional>
#include <QDate>
#include <QString>
#include <vector>

class QWidget;

namespace kuyum {

/// What a screen asks of the lookup list: which list, from where on.
struct LookupRequest
{
    QString ListeTuru;     ///< such as "Tas Listesi"
    QString ListeFiltre;   ///< the key text the list starts at; may be empty
    bool cokSecim = false; ///< whether several rows can be taken at once
};

/// What the user took; everything empty when nothing was taken.
struct LookupAnswer
{
    QString Secilen;       ///< the chosen code or name
    QString SecilenID;     ///< identifier of a stone, mold or product type
    qint16 SecilenTip = 0; ///< product type of a chosen model
    qint32 SecilenNo = 0;  ///< customer code or order number
    QDate SecilenTarih;
    std::vector<LookupAnswer> Secilenler = {}; ///< all of them, where several were taken
};

/// Opens the lookup list modally; handed to the screens by the program.
using LookupOpener = std::function<LookupAnswer(QWidget *parent, const LookupRequest &request)>;

} // namespace kuyum
