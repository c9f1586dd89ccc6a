#pragma once

#include "PrintDocument.h"
#include "Siparis.h"

/// By which of its three identities the customer is printed.
enum class MusteriKimligi { Kisa, Ad, Kod };

/// The order slip "SİPARİŞ LİSTESİ" as a plain list.
PrintDocument siparisFisi(const Siparis &siparis, MusteriKimligi kimlik, double toplamGram);
