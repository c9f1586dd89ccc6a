#pragma once

#include "SlipPages.h"

namespace kuyum {

/// The order slip "SİPARİŞ LİSTESİ" as a plain list.
PrintDocument siparisFisi(const Siparis &siparis, MusteriKimligi kimlik, double toplamGram);

} // namespace kuyum
