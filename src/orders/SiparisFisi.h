#pragma once

#include "SlipPages.h"

/// The order slip "SİPARİŞ LİSTESİ" as a plain list.
PrintDocument siparisFisi(const Siparis &siparis, MusteriKimligi kimlik, double toplamGram);
