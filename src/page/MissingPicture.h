#pragma once

#include "PrintDocument.h"

namespace kuyum {

/// A picture's box on paper.
struct PictureRoom
{
    PagePoint at;
    Twips width;
    Twips height;
};

/// In place of a picture that is missing: the frame of its box, and in its
/// middle the code, in the document's fixed-pitch font. A code that is too
/// long for the box ends in a mark that it goes on.
void missingPicture(PrintDocument &document, const PictureRoom &box, const QString &code);

} // namespace kuyum
