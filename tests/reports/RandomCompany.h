#pragma once

#include "Oturum.h"

#include <optional>
#include <QTemporaryDir>
#include <random>

namespace kuyum {

/// A small company of chance in which everything is off that can be: models in
/// several spellings, undefined ones and ones without materials, parts named
/// twice, types, customers and codes that are gone, nulls, karats with decimals.
/// What stands in its tables is kept as plain rows.
struct RandomCompany
{
    explicit RandomCompany(unsigned seed);

    using Number = std::optional<double>;
    struct Header
    {
        int Sipnum;
        QDate SipTrh;
        int SipFirkod;
        Number Ayar;
    };
    struct Line
    {
        int SipnumD;
        QString SipModel; ///< null for a null, as all texts here
        Number SipUruntip;
        Number SipAdet;
    };
    struct Part
    {
        QString Model;
        Number M_Uruntip;
        int M_Tip;
        int M_Kod;
        Number M_Adet;
    };
    struct Stone
    {
        int TasID;
        QString Taskodu;
        Number TasKatsayi;
    };
    struct Mold
    {
        int KalipID;
        QString KalipKodu;
        QString KalipAck;
    };
    struct Customer
    {
        int Firkod;
        int UlkeID;
    };
    struct Type
    {
        int TipID;
        QString UrunTipi;
    };

    QList<Header> headers;
    QList<Line> lines;
    QList<Part> parts;
    QList<Stone> stones;
    QList<Mold> molds;
    QList<Customer> customers;
    QList<Type> types;

    QTemporaryDir dir;
    Oturum oturum;

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename Value>
    Value oneOf(const QList<Value> &values)
    {
        return values[below(int(values.size()))];
    }
    void addMaterials();
    void addParts();
    void addOrders();
    void store();

    std::mt19937 m_random;
};

} // namespace kuyum
