#pragma once

#include "Katalog.h"
#include "PictureFiles.h"
#include "PrintDocument.h"

#include <optional>

namespace kuyum {

/// One page form of a catalogue: so many pictures across and down.
struct KatalogSayfasi
{
    int across;
    int down;
    Twips pictureWidth;
    Twips pictureHeight;
    Twips extra; ///< vertical space below each line of pictures
    Twips header;
    Twips top; ///< of the first line of pictures

    static constexpr Twips left = 500_tw;
    static constexpr Twips gap = 300_tw; ///< between two pictures of a line

    int perPage() const { return across * down; }
    /// Where the picture's box of a page's cell stands, counted from 0.
    PagePoint box(int cell) const;
};

inline constexpr KatalogSayfasi katalogSayfasi35{3, 5, 3300_tw, 2480_tw, 600_tw, 500_tw, 950_tw};
inline constexpr KatalogSayfasi katalogSayfasi46{4, 6, 2500_tw, 1880_tw, 800_tw, 300_tw, 585_tw};

/// The catalogue with 3 x 5 or 4 x 6 pictures to a page, the pictures from that
/// folder. Nothing when it was stopped while it read them.
std::optional<PrintDocument> Katalog_35(const Katalog &katalog, const QString &ResimYolu,
                                        const PictureProgress &progress);
std::optional<PrintDocument> Katalog_46(const Katalog &katalog, const QString &ResimYolu,
                                        const PictureProgress &progress);

} // namespace kuyum
