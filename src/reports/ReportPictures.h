#pragma once

#include "ReportSheet.h"

namespace kuyum {

struct Oturum;

/// The picture file of a model as a product type; empty where there is none. A
/// ring's picture never stands for an earring of the same code. Without a type,
/// that of any of the model's types.
QString reportPicture(Oturum &oturum, const QString &model, const QString &KisaAD);

/// Finds the picture files of a company's models; the session must outlive it.
PictureFinder reportPictures(Oturum &oturum);

} // namespace kuyum
