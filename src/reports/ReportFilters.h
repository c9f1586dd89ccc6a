#pragma once

#include <QList>
#include <QStringList>

namespace kuyum {

struct Oturum;

/// What the order reports can be filtered by.
struct FilterChoice
{
    qint32 number = 0;
    QString text;
};

/// The customers, by name.
QList<FilterChoice> customerChoices(const Oturum &oturum);
/// The countries, by name.
QList<FilterChoice> countryChoices(const Oturum &oturum);
/// The product types, by name.
QList<FilterChoice> productTypeChoices(const Oturum &oturum);
/// What the codes of the models begin with, up to the first sign that is no
/// letter: their families, in alphabetical order.
QStringList modelPrefixes(const Oturum &oturum);

} // namespace kuyum
