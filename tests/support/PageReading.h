#pragma once

#include "PrintDocument.h"

#include <QFontMetricsF>
#include <QRegularExpression>

namespace kuyum {

/// What printed pages hold, and whether it stands on them as it should.
namespace PageReading {

using namespace Qt::StringLiterals;

template <typename Item>
QList<Item> items(const PrintPage &page)
{
    QList<Item> result;
    for (const PageItem &item : page.items) {
        if (const Item *wanted = std::get_if<Item>(&item))
            result.append(*wanted);
    }
    return result;
}

/// What stands at a place of a page; nothing where no text does.
inline QString at(const PrintPage &page, Twips x, Twips y)
{
    for (const PageText &text : items<PageText>(page)) {
        if (text.at == PagePoint{x, y})
            return text.text;
    }
    return {};
}

/// The paper that a text's words take, in twips.
inline QList<QRectF> paperOf(const PageText &text)
{
    QFont font(printedFamily(text.font.family));
    font.setPixelSize(qRound(Twips::fromPoints(text.font.points).count()));
    font.setBold(text.font.bold);
    const QFontMetricsF metrics(font);
    QList<QRectF> words;
    static const QRegularExpression word(u"\\S+"_s);
    for (const QRegularExpressionMatch &found : word.globalMatch(text.text))
        words.append(
            {text.at.x.count() + metrics.horizontalAdvance(text.text.left(found.capturedStart())),
             text.at.y.count(), metrics.horizontalAdvance(found.captured()), metrics.height()});
    return words;
}

inline QList<QRectF> paperOf(const PagePicture &picture)
{
    const QSizeF box(picture.width.count(), picture.height.count());
    return {{QPointF(picture.at.x.count(), picture.at.y.count()),
             QSizeF(picture.image.size()).scaled(box, Qt::KeepAspectRatio)}};
}

inline QList<QRectF> paperOf(const PageLine &line)
{
    const double half = line.width.count() / 2;
    return {QRectF(QPointF(line.from.x.count(), line.from.y.count()),
                   QPointF(line.to.x.count(), line.to.y.count()))
                .normalized()
                .adjusted(-half, -half, half, half)};
}

inline QList<QRectF> paperOf(const PagePhoto &photo)
{
    return {{photo.at.x.count(), photo.at.y.count(), photo.width.count(), photo.height.count()}};
}

inline QList<QRectF> paperOf(const PageSymbol &symbol)
{
    return {{QPointF(symbol.at.x.count(), symbol.at.y.count()),
             QSizeF(symbol.bars.room.count(), symbol.bars.height.count())}};
}

/// The first fault of a page: two of its items share paper (lines may cross
/// lines), or one leaves what printers reach. Empty when there is none.
inline QString layoutFault(const PrintPage &page)
{
    struct Place
    {
        QRectF paper;
        bool isLine;
        QString name;
    };
    QList<Place> places;
    for (const PageItem &item : page.items) {
        const auto *text = std::get_if<PageText>(&item);
        const bool isLine = std::holds_alternative<PageLine>(item);
        const QString name = text != nullptr ? text->text : isLine ? u"line"_s : u"picture"_s;
        std::visit(
            [&](const auto &kind) {
                for (const QRectF &paper : paperOf(kind))
                    places.append({paper, isLine, name});
            },
            item);
    }
    for (qsizetype i = 0; i < places.size(); ++i) {
        const Place &place = places[i];
        const QString where =
            u"%1 at %2, %3"_s.arg(place.name).arg(place.paper.x()).arg(place.paper.y());
        if (!QRectF(300, 240, 11300, 16200).contains(place.paper))
            return where + u" leaves the page"_s;
        for (qsizetype j = 0; j < i; ++j) {
            if (!(place.isLine && places[j].isLine) && place.paper.intersects(places[j].paper))
                return where + u" covers "_s + places[j].name;
        }
    }
    return {};
}

/// The first fault of all pages.
inline QString layoutFault(const PrintDocument &document)
{
    for (const PrintPage &page : document.pages()) {
        if (const QString fault = layoutFault(page); !fault.isEmpty())
            return fault;
    }
    return {};
}

} // namespace PageReading

} // namespace kuyum
