#pragma once

#include <functional>
#include <QList>
#include <QString>

namespace kuyum {

struct DemoModel;

/// Draws a picture of every model and mold into the picture folder: molds in
/// KLP, some models in the folder of their product type. Throws
/// std::runtime_error when a file cannot be written.
void drawPictures(const QString &folder, const QList<DemoModel> &models,
                  const QStringList &moldCodes,
                  const std::function<void(int done, int all)> &progress);

} // namespace kuyum
