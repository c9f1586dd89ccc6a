#include "Windows1254.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class Windows1254Test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCodeComesBack()
    {
        for (int code = 0; code < 256; ++code)
            QCOMPARE(windows1254Code(QChar(windows1254Character(quint8(code)))), quint8(code));
        QVERIFY(!windows1254Code(u'Ω').has_value());
    }

    void tellsTheCodeOfAFile()
    {
        const QString text = u"IŞIK ğüşiöç €"_s;
        for (const TextCode code : {TextCode::Utf8, TextCode::Windows1254}) {
            const QByteArray bytes = encodedText(text, code).value();
            QVERIFY(textCodeOf(bytes) == code);
            QCOMPARE(decodedText(bytes), text);
        }
        QCOMPARE(decodedText("\xef\xbb\xbf"
                             "a"_ba),
                 u"a"_s);
        // A UTF-8 letter cut in two at the end is no UTF-8.
        QVERIFY(textCodeOf("a\xc5"_ba) == TextCode::Windows1254);
        QVERIFY(!encodedText(u"Ω"_s, TextCode::Windows1254).has_value());
    }
};

KUYUM_TEST(Windows1254Test)

} // namespace kuyum

#include "Windows1254Test.moc"
