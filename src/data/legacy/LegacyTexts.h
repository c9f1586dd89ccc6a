#pragma once

#include "LegacyLibrary.h"
#include "RawValue.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace kuyum {

/// Reads texts of a legacy file as UTF-8. Remembers the short ones, of which
/// few fill many rows: codes, statuses, colours.
class LegacyTexts
{
public:
    explicit LegacyTexts(MdbHandle *handle) : m_handle(handle) {}

    /// Sets the database's text code up; once after opening.
    static void setCode(MdbHandle *handle);

    void store(std::string_view source, RawValue &value);

private:
    void convert(std::string_view source, std::string &target);

    struct Hash
    {
        using is_transparent = void;
        size_t operator()(std::string_view text) const
        {
            return std::hash<std::string_view>()(text);
        }
    };

    MdbHandle *m_handle;
    /// UTF-8 by the bytes in the file; found by a view of these.
    std::unordered_map<std::string, std::string, Hash, std::equal_to<>> m_known;
};

} // namespace kuyum
