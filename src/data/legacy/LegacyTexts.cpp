#include "LegacyTexts.h"

namespace kuyum {

namespace {

constexpr size_t shortText = 64;
constexpr size_t rememberedTexts = 20000;

} // namespace

void LegacyTexts::setCode(MdbHandle *handle)
{
    // The files of Jet 3 were written in Windows' Turkish code, also where they
    // claim Western European. Jet 4's is UTF-16, of which the library by itself
    // takes only the plain part.
#if MDBTOOLS_H_HAVE_ICONV_H
    const char *code = "UTF-16LE";
    if (IS_JET3(handle)) {
        const int page = handle->f->code_page;
        if (page != 0 && page != 1252 && page != 1254)
            return;
        code = "CP1254";
    }
    const iconv_t converter = iconv_open("UTF-8", code);
    if (converter == iconv_t(-1))
        return;
    if (handle->iconv_in != iconv_t(-1))
        iconv_close(handle->iconv_in);
    handle->iconv_in = converter;
#else
    Q_UNUSED(handle);
#endif
}

void LegacyTexts::store(std::string_view source, RawValue &value)
{
    value.kind = RawValue::Kind::Text;
    if (source.size() > shortText) {
        convert(source, value.bytes);
        return;
    }
    auto known = m_known.find(source);
    if (known == m_known.end()) {
        if (m_known.size() >= rememberedTexts)
            m_known.clear();
        std::string text;
        convert(source, text);
        known = m_known.emplace(source, std::move(text)).first;
    }
    value.bytes = known->second;
}

void LegacyTexts::convert(std::string_view source, std::string &target)
{
    // A byte can become three (one of Jet 3's code pages), and the library
    // writes a closing zero.
    const size_t room = 3 * source.size() + 8;
    target.resize(room);
    const int length =
        mdb_unicode2ascii(m_handle, source.data(), source.size(), target.data(), room - 1);
    target.resize(size_t(qMax(0, length)));
}

} // namespace kuyum
