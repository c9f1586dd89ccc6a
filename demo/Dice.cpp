#include "Dice.h"

#include "Numbers.h"

#include <cmath>

namespace kuyum {

int Dice::below(int count)
{
    return int(m_generator() % quint32(count));
}

int Dice::between(int least, int most)
{
    return least + below(most - least + 1);
}

double Dice::decimal(double least, double most, int decimals)
{
    const double steps = std::pow(10, decimals);
    return roundDecimal(
        between(int(std::lround(least * steps)), int(std::lround(most * steps))) / steps, decimals);
}

} // namespace kuyum
