#pragma once

#include "Model.h"
#include "PrintDocument.h"

namespace kuyum {

/// A model on one page: its picture, its stones and its molds' pictures.
struct ModelFoyu
{
    PrintDocument document;
    qsizetype leftOut = 0; ///< materials that found no room on the page
};

/// Pictures are read from the company's picture folder; where one is missing
/// or broken an empty frame with the code stands for it.
ModelFoyu modelFoyu(const Model &model, const ModelTipi &tip, const QString &ResimYolu);

} // namespace kuyum
