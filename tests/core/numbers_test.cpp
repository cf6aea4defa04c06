#include "core/elementreader.h"
#include "core/numbers.h"
#include "core/times.h"
#include "support/effort.h"
#include "support/qtversion.h"
#include "support/values.h"

#include <QtTest/QtTest>

#include <cfenv>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>

/// \file
/// Numbers and times are read and written by short ways of our own. Whatever the input, they must give what Qt's give:
/// the same bits, the same text, the same answer whether it is one.

using namespace ArvXml;
using TestEffort::reduced;

namespace {

using Limits = std::numeric_limits<double>;

constexpr NumberFormat formats[] = {{'f', 0}, {'f', 1}, {'f', 2},  {'f', 3}, {'f', 4},
                                    {'f', 6}, {'f', 9}, {'f', 15}, {'g', 6}};

quint64 bitsOf(double value)
{
    quint64 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

double ofBits(quint64 bits)
{
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

/// Whether this machine takes the fast path for numbers with decimals, and for those beyond 53 bits: where doubles are
/// not evaluated as doubles (x87), or integers have no 128 bits, they are left to Qt.
#if FLT_EVAL_METHOD == 0
constexpr bool dividesDoubles = true;
#else
constexpr bool dividesDoubles = false;
#endif
#ifdef __SIZEOF_INT128__
constexpr bool hasWideIntegers = true;
#else
constexpr bool hasWideIntegers = false;
#endif

constexpr bool isQt6 = std::is_same_v<StreamText, QStringView>;

/// A part of \a text such as the stream hands out: the text and a place with Qt 5, a view with Qt 6.
template <typename Text>
Text part(const QString& text, int from, int length)
{
    if constexpr (std::is_same_v<Text, QStringView>)
        return QStringView(text).mid(from, length);
    else
        return Text(&text, from, length);
}

/// Counts disagreements and shows the first one: a million comparisons by QCOMPARE would take minutes.
class Verdict {
public:
    template <typename What>
    void expect(bool agrees, What what)
    {
        ++m_checks;
        if (!agrees && m_failures++ == 0)
            m_first = what().toUtf8();
    }
    int checks() const { return m_checks; }
    const char* firstFailure() const { return m_first.constData(); }
    bool isGood() const { return m_failures == 0; }

private:
    int m_checks = 0;
    int m_failures = 0;
    QByteArray m_first;
};

void compareWritten(Verdict& verdict, double value, NumberFormat format)
{
    const QString text = numberText(value, format);
    verdict.expect(text == QString::number(value, format.format, format.digits), [&] {
        return QStringLiteral("%1 in %2%3 is written %4")
            .arg(QString::number(value, 'g', 17), QString(QLatin1Char(format.format)))
            .arg(format.digits)
            .arg(text);
    });
}

void compareWritten(Verdict& verdict, double value)
{
    for (const NumberFormat& format : formats) {
        compareWritten(verdict, value, format);
        compareWritten(verdict, -value, format);
    }
}

void compareRead(Verdict& verdict, const QString& text)
{
    bool ok = false;
    bool expectedOk = false;
    const double real = toReal(text, &ok);
    const double expectedReal = text.toDouble(&expectedOk);
    const bool sameNumber = bitsOf(real) == bitsOf(expectedReal) || (std::isnan(real) && std::isnan(expectedReal));
    verdict.expect(ok == expectedOk && sameNumber,
                   [&] { return QStringLiteral("\"%1\" is read as a real number").arg(text); });
    const int integer = toInteger(text, &ok);
    const int expectedInteger = text.toInt(&expectedOk, 10);
    verdict.expect(ok == expectedOk && integer == expectedInteger,
                   [&] { return QStringLiteral("\"%1\" is read as an integer").arg(text); });
}

void compareTime(Verdict& verdict, const QString& text)
{
    const QDateTime time = toDateTime(text);
    const QDateTime expected = QDateTime::fromString(text, Qt::ISODate);
    verdict.expect(time.isValid() == expected.isValid() && time == expected && time.timeSpec() == expected.timeSpec(),
                   [&] { return QStringLiteral("\"%1\" is read as a time").arg(text); });
}

} // namespace

class NumbersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void chosenNumbersWritten();
    void tiesWritten();
    void powersWritten();
    void randomNumbersWritten();
    void literals();
    void theShortWayIsTaken();
    void theShortWayIsLeftInWriting();
    void theShortWayIsLeftForTimes();
    void theShortWayIsLeft_data();
    void theShortWayIsLeft();
    void chosenTextsRead();
    void randomNumbersRead();
    void longNumbersRead();
    void otherRoundingModes_data();
    void otherRoundingModes();
    void randomTextsRead();
    void partOfText();
    void integersThatOnlyQt5Reads();
    void timesThatOneQtReads_data();
    void timesThatOneQtReads();
    void chosenTimesRead();
    void randomTimesRead();
    void timesWritten();
};

void NumbersTest::chosenNumbersWritten()
{
    Verdict verdict;
    const double chosen[] = {0.0,
                             Limits::min(),
                             Limits::denorm_min(),
                             Limits::max(),
                             Limits::infinity(),
                             Limits::quiet_NaN(),
                             Limits::epsilon(),
                             -999.999,
                             -99999.999,
                             -99999.989,
                             999999.5,
                             999999.4999999999,
                             99999.95,
                             0.99999951,
                             0.9999995,
                             0.999999999999999,
                             0.9999999999999999,
                             9007199254740991.0,
                             9007199254740992.0,
                             9007199254740993.0,
                             4503599627370495.5,
                             4503599627370496.5,
                             2251799813685247.75,
                             123456.5,
                             12345.65,
                             1e15,
                             1e16,
                             1e22,
                             1e23,
                             1e300,
                             1e-4,
                             1e-5,
                             1e-15,
                             5e-16,
                             4.9999999999999e-16};
    for (const double value : chosen) {
        compareWritten(verdict, value);
        for (int digits = 0; digits <= 20; ++digits) {
            compareWritten(verdict, value, {'f', digits});
            compareWritten(verdict, -value, {'g', digits});
        }
    }
    QVERIFY2(verdict.isGood(), verdict.firstFailure());
}

void NumbersTest::tiesWritten()
{
    // Exactly between two texts: multiples of a half, a quarter ... of the last decimal.
    Verdict verdict;
    for (int shift = 1; shift <= 20; ++shift) {
        for (int i = 1; i <= reduced(3000); ++i)
            compareWritten(verdict, std::ldexp(i, -shift));
    }
    QVERIFY2(verdict.isGood(), verdict.firstFailure());
}

void NumbersTest::powersWritten()
{
    // Powers of two and of ten, and their neighbours.
    Verdict verdict;
    for (int exponent = -1074; exponent <= 1023; exponent += TestEffort::divisor()) {
        const double power = std::ldexp(1.0, exponent);
        for (const double value : {power, std::nextafter(power, 0.0), std::nextafter(power, Limits::max())})
            compareWritten(verdict, value);
    }
    for (int exponent = -20; exponent <= 25; ++exponent) {
        const double power = QStringLiteral("1e%1").arg(exponent).toDouble();
        for (const double value : {power, std::nextafter(power, 0.0), std::nextafter(power, Limits::max())})
            compareWritten(verdict, value);
    }
    QVERIFY2(verdict.isGood(), verdict.firstFailure());
}

void NumbersTest::randomNumbersWritten()
{
    std::mt19937_64 random(20240305);
    Verdict verdict;
    for (int i = 0; i < reduced(20000); ++i) {
        const quint64 bits = random();
        compareWritten(verdict, ofBits(bits)); // of every size, infinities and NaN among them
        compareWritten(verdict, static_cast<double>(bits % 2000000000) / 1e6);
        compareWritten(verdict, static_cast<double>(bits % 2000000) / 1000);
        compareWritten(verdict, std::ldexp(static_cast<double>(bits >> 11), -static_cast<int>(random() % 120)));
    }
    QVERIFY(verdict.checks() > reduced(1400000));
    QVERIFY2(verdict.isGood(), verdict.firstFailure());
}

void NumbersTest::literals()
{
    // Not by comparison alone: some texts as they stand.
    QCOMPARE(numberText(8.5, {'f', 6}), QStringLiteral("8.500000"));
    QCOMPARE(numberText(-999.999, {'f', 6}), QStringLiteral("-999.999000"));
    QCOMPARE(numberText(-95.5, {'f', 15}), QStringLiteral("-95.500000000000000"));
    QCOMPARE(numberText(0.1, {'f', 15}), QStringLiteral("0.100000000000000"));
    QCOMPARE(numberText(99.9999999, {'f', 6}), QStringLiteral("100.000000"));
    QCOMPARE(numberText(2.5, {'f', 0}), QStringLiteral("3"));
    QCOMPARE(numberText(25, {'g', 6}), QStringLiteral("25"));
    QCOMPARE(numberText(12.5, {'g', 6}), QStringLiteral("12.5"));
    QCOMPARE(numberText(1234567, {'g', 6}), QStringLiteral("1.23457e+06"));
    QCOMPARE(numberText(0.000012345678, {'g', 6}), QStringLiteral("1.23457e-05"));
    QCOMPARE(numberText(-2147483647 - 1), QStringLiteral("-2147483648"));
}

void NumbersTest::theShortWayIsTaken()
{
    // What the protocol's own numbers look like must not go the long way.
    const auto real = [](const QString& text) { return fastReal(text.data(), text.data() + text.size()); };
    for (const char* text : {"0", "-7", "25.000000000000000", "123456789012345", "9007199254740992"})
        QVERIFY2(real(QString::fromLatin1(text)).has_value(), text);
    for (const char* text : {"8.5", "-8.500000", "47.379444", "-95.500000000000000", "-999.999000",
                             "0.0000000000000001", "-0.000000000000000001"})
        QVERIFY2(real(QString::fromLatin1(text)).has_value() == dividesDoubles, text);
    for (const char* text : {"-114.099999999999994", "9999999999999999999", "9007199254740993", "9007199254740992.5"})
        QVERIFY2(real(QString::fromLatin1(text)).has_value() == (dividesDoubles && hasWideIntegers), text);
    const auto integer = [](const QString& text) { return fastInteger(text.data(), text.data() + text.size()); };
    for (const char* text : {"0", "7", "-7", "007", "123456789", "-12345678"})
        QVERIFY2(integer(QString::fromLatin1(text)).has_value(), text);

    if (hasWideIntegers) {
        QCOMPARE(fastText(8.5, {'f', 6}), QStringLiteral("8.500000"));
        QCOMPARE(fastText(-95.5, {'f', 15}), QStringLiteral("-95.500000000000000"));
        QCOMPARE(fastText(4503599627370497.0, {'f', 0}), QStringLiteral("4503599627370497")); // no bit is a fraction
        QCOMPARE(fastText(9007199254740991.0, {'f', 1}), QStringLiteral("9007199254740991.0"));
        QCOMPARE(fastText(1, {'g', 6}), QStringLiteral("1"));
        QCOMPARE(fastText(-12.5, {'g', 6}), QStringLiteral("-12.5"));
        QCOMPARE(fastText(999999, {'g', 6}), QStringLiteral("999999"));
    }

    for (const char* text :
         {"2024-03-05T14:07:09", "2024-02-29T00:00:00", "0001-01-01T00:00:00", "9999-12-31T23:59:59"})
        QVERIFY2(fastDateTime(QString::fromLatin1(text)).isValid(), text);
}

void NumbersTest::theShortWayIsLeftInWriting()
{
    // Nothing below normal numbers or from 2^53 on, no more than fifteen digits, and no exponents.
    for (const double value :
         {9007199254740992.0, 1e300, Limits::denorm_min(), Limits::infinity(), Limits::quiet_NaN()})
        QVERIFY(fastText(value, {'f', 6}).isNull());
    QVERIFY(fastText(8.5, {'f', 16}).isNull());
    for (const double value : {0.0, 0.5, 999999.5, 1000000.0, Limits::quiet_NaN()})
        QVERIFY(fastText(value, {'g', 6}).isNull());
    QVERIFY(fastText(8.5, {'g', 16}).isNull());
}

void NumbersTest::theShortWayIsLeftForTimes()
{
    const QString time = QStringLiteral("2024-03-05T14:07:09");
    for (int i = 0; i < time.size(); ++i) {
        QVERIFY(!fastDateTime(QString(time).replace(i, 1, QLatin1Char('/'))).isValid()); // comes before the digits
        QVERIFY(!fastDateTime(QString(time).replace(i, 1, QLatin1Char(':'))).isValid()
                || time[i] == QLatin1Char(':')); // comes behind them
    }
    for (const char* text : {"", "2024-03-05T14:07", "2024-03-05T14:07:09Z", "2024-13-05T14:07:09",
                             "2023-02-29T00:00:00", "2024-03-05T24:00:00", "2024-03-05T14:60:00"})
        QVERIFY2(!fastDateTime(QString::fromLatin1(text)).isValid(), text);
}

void NumbersTest::theShortWayIsLeft_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text :
         {"", "-", "+1", " 1", "1 ", ".5", "5.", "-.5", "--1", "1..2", "1e5", "inf", "nan", "0x10", "1,5",
          "99999999999999999999", "18446744073709551616", "12345678901.2345678901", "0.00000000000000000000001"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void NumbersTest::theShortWayIsLeft()
{
    QFETCH(QString, text);
    QVERIFY(!fastReal(text.data(), text.data() + text.size()));
    Verdict verdict;
    compareRead(verdict, text);
    QVERIFY2(verdict.isGood(), verdict.firstFailure());
}

void NumbersTest::chosenTextsRead()
{
    Verdict verdict;
    for (const char* text : {"-0",
                             "-0.0",
                             "00",
                             "-00.0",
                             "0000000000000000000000000001.5",
                             "0.00000000000000000000000000000000000001",
                             "-0.0000000000000000000000000000000",
                             "9007199254740991.0",
                             "9007199254740993.0",
                             "900719925474099.25",
                             "9999999999999999999",
                             "99999999999999999990",
                             "0.9999999999999999999",
                             "0.999999999999999999",
                             "0.000000000000000123",
                             "0.0000000000000000123",
                             "123456789",
                             "999999999",
                             "1000000000",
                             "2147483647",
                             "2147483648",
                             "-2147483648",
                             "-2147483649",
                             "1e400",
                             "-1e-400",
                             "1e22",
                             "1d5",
                             "1f",
                             "infinity",
                             "\xd9\xa3",
                             "1.\xd9\xa3",
                             "1\xc2\xa0",
                             "\t7\n",
                             "1 000",
                             "1'000",
                             "0b1",
                             "1e",
                             "1e+",
                             "\xef\xbc\x91"})
        compareRead(verdict, QString::fromUtf8(text));
    compareRead(verdict, QString(QLatin1Char('1')) + QChar(0) + QLatin1Char('2'));
    compareRead(verdict, QString(100000, QLatin1Char('0')) + QStringLiteral("7"));
    compareRead(verdict, QStringLiteral("7.") + QString(100000, QLatin1Char('0')));
    QVERIFY2(verdict.isGood(), verdict.firstFailure());
}

void NumbersTest::randomNumbersRead()
{
    std::mt19937_64 random(7);
    Verdict verdict;
    for (int i = 0; i < reduced(180000); ++i) {
        const quint64 bits = random();
        const double value = i % 2 == 0
            ? static_cast<double>(bits % 2000000000) / 1e6
            : std::ldexp(static_cast<double>(bits >> 11), -static_cast<int>(random() % 100));
        compareRead(verdict, QString::number((bits & 1) != 0 ? value : -value, 'f', static_cast<int>(random() % 19)));
        compareRead(verdict,
                    QString::number(bits % 10000000000000) + QLatin1Char('.') + QString::number(random() % 1000000));
        compareRead(verdict, QString::number(ofBits(bits), 'g', 17));
    }
    QVERIFY(verdict.checks() > reduced(1000000));
    QVERIFY2(verdict.isGood(), verdict.firstFailure());
}

void NumbersTest::longNumbersRead()
{
    // Sixteen to twenty digits: more than a real number holds, many of them halfway between two.
    std::mt19937_64 random(17);
    Verdict verdict;
    for (int i = 0; i < reduced(100000); ++i) {
        QString text = QString::number(random() >> (random() % 12));
        if (i % 2 == 0)
            text = QString::number(((random() >> 10) | (quint64(1) << 53)) * 2 + 1); // a tie
        compareRead(verdict, text);
        compareRead(verdict,
                    QString(text).insert(1 + static_cast<int>(random() % quint64(text.size())), QLatin1Char('.')));
        // A real number and half, a quarter ... of its last bit
        const double value =
            std::ldexp(static_cast<double>((random() >> 11) | (quint64(1) << 52)), -static_cast<int>(random() % 8));
        const QString exact = QString::number(value, 'f', 8);
        compareRead(verdict, exact);
        compareRead(verdict, exact + QLatin1Char('5'));
    }
    QVERIFY2(verdict.isGood(), verdict.firstFailure());
}

void NumbersTest::otherRoundingModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("to nearest") << FE_TONEAREST;
    QTest::newRow("upward") << FE_UPWARD;
    QTest::newRow("downward") << FE_DOWNWARD;
    QTest::newRow("towards zero") << FE_TOWARDZERO;
}

void NumbersTest::otherRoundingModes()
{
    // A program that rounds otherwise gets what Qt makes of each text and number under its mode.
    QFETCH(int, mode);
    QStringList texts;
    QVector<double> values;
    std::mt19937_64 random(20261122);
    for (int i = 0; i < reduced(20000); ++i) {
        const quint64 bits = random();
        for (const quint64 digits : {bits % 1000000000, bits % 9007199254740993, bits}) // 9, 16 and up to 20 digits
            texts.append(QString::number(digits).insert(1 + static_cast<int>(bits % 6), QLatin1Char('.')));
        values.append(static_cast<double>(bits % 2000000000) / 1e6);
    }

    Verdict verdict;
    std::fesetround(mode);
    for (const QString& text : std::as_const(texts))
        compareRead(verdict, text);
    for (const double value : std::as_const(values))
        compareWritten(verdict, value);
    std::fesetround(FE_TONEAREST);
    QVERIFY2(verdict.isGood(), verdict.firstFailure());
}

void NumbersTest::randomTextsRead()
{
    const QLatin1String alphabet("0123456789.-+ e,0123456789.");
    std::mt19937_64 random(11);
    Verdict verdict;
    for (int i = 0; i < reduced(500000); ++i) {
        QString text;
        for (quint64 length = random() % 9; length > 0; --length)
            text.append(alphabet[static_cast<int>(random() % 27)]);
        compareRead(verdict, text);
    }
    QVERIFY2(verdict.isGood(), verdict.firstFailure());
}

void NumbersTest::partOfText()
{
    // The stream hands out parts of longer texts; what stands around them must not count.
    const QString text = QStringLiteral("9912.59");
    const auto real = part<StreamText>(text, 2, 4);
    bool ok = false;
    QCOMPARE(toReal(real, &ok), 12.5);
    QVERIFY(ok);
    QCOMPARE(toInteger(part<StreamText>(text, 1, 2), &ok), 91);
    QVERIFY(ok);
}

/// What neither we nor the protocol decide, but Qt: a change must be known.
void NumbersTest::integersThatOnlyQt5Reads()
{
    const char* const minus = "\u22127"; // the sign of mathematics
    for (const char* text : {"\u00a07", "7\u00a0", "\u20037", "7\u2028", minus}) {
        const QString integer = QString::fromUtf8(text);
        bool isInteger = false;
        toInteger(integer, &isInteger);
        QCOMPARE(isInteger, !isQt6);
        bool isReal = false;
        toReal(integer, &isReal);
        QVERIFY2(isReal == (text != minus || !isQtFrom(6, 8)), text);
    }
    for (const char* text : {" 7", "7 ", "\t7\n"}) {
        bool isInteger = false;
        QCOMPARE(toInteger(QString::fromUtf8(text), &isInteger), 7);
        QVERIFY2(isInteger, text);
    }
}

void NumbersTest::timesThatOneQtReads_data()
{
    QTest::addColumn<QTime>("qt5");
    QTest::addColumn<QTime>("qt6");
    const QTime none;
    QTest::newRow("2024-03-05T14:07:09 ") << QTime(14, 7, 9) << none;
    QTest::newRow("2024-03-05T14:07:09UTC") << QTime(14, 7, 9) << none;
    QTest::newRow("2024-03-05T14:07:9") << QTime(14, 7, 9) << none;
    QTest::newRow("2024-03-05T14:07:09.") << QTime(14, 7, 9) << none;
    QTest::newRow("2024-03-05T14:07:09 +01:00") << QTime(14, 7, 9) << none;
    QTest::newRow("2024-+3-05T14:07:09") << QTime(14, 7, 9) << none;
    QTest::newRow("2024-03-05T14") << none << QTime(14, 0);
    QTest::newRow("2024-03-05T14.5") << none << QTime(14, 30);
    QTest::newRow("2024-03-05T14:07:09.9999") << QTime(14, 7, 9, 999) << QTime(14, 7, 10);
}

void NumbersTest::timesThatOneQtReads()
{
    QFETCH(QTime, qt5);
    QFETCH(QTime, qt6);
    QCOMPARE(toDateTime(QString::fromLatin1(QTest::currentDataTag())).time(), isQt6 ? qt6 : qt5);
}

void NumbersTest::chosenTimesRead()
{
    Verdict verdict;
    for (const char* text : {"2024-03-05T14:07:09",
                             "2024-02-29T00:00:00",
                             "2023-02-29T00:00:00",
                             "2024-03-05T24:00:00",
                             "2024-03-05T23:59:60",
                             "2024-03-05T25:07:09",
                             "2024-13-05T14:07:09",
                             "2024-00-05T14:07:09",
                             "0000-03-05T14:07:09",
                             "0001-01-01T00:00:00",
                             "9999-12-31T23:59:59",
                             "2024-03-05 14:07:09",
                             "2024-03-05t14:07:09",
                             "2024-03-05T14:07:09Z",
                             "2024-03-05T14:07:09+02:00",
                             "2024-03-05T14:07:09.123",
                             "2024-03-05T14:07",
                             "2024-03-05",
                             "",
                             "now",
                             "2024-03-05T14:07:0x",
                             "2024-3-05T14:07:009",
                             "-024-03-05T14:07:09",
                             "2024-03-05T14-07-09",
                             "2024/03/05T14:07:09",
                             "2024-03-31T02:30:00",
                             "2024-10-27T02:30:00",
                             " 024-03-05T14:07:09",
                             "2024-03-05T+4:07:09"})
        compareTime(verdict, QString::fromLatin1(text));
    QVERIFY2(verdict.isGood(), verdict.firstFailure());
    QCOMPARE(toDateTime(QStringLiteral("2024-03-05T14:07:09")), QDateTime(QDate(2024, 3, 5), QTime(14, 7, 9)));
}

void NumbersTest::randomTimesRead()
{
    // In a zone with summer time: some hours do not exist.
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    std::mt19937_64 random(13);
    const auto digits = [&random](quint64 below, int width) {
        return QStringLiteral("%1").arg(random() % below, width, 10, QLatin1Char('0'));
    };
    Verdict verdict;
    for (int i = 0; i < reduced(100000); ++i) {
        QString text = QStringLiteral("%1-%2-%3T%4:%5:%6")
                           .arg(digits(i % 2 == 0 ? 10000 : 2100, 4), digits(14, 2), digits(33, 2), digits(26, 2),
                                digits(62, 2), digits(62, 2));
        if (i % 16 == 0)
            text[static_cast<int>(random() % 19)] = QLatin1Char("0T:- Z"[random() % 6]);
        compareTime(verdict, text);
    }
    for (int minute = 0; minute < 24 * 60; ++minute) // the day on which an hour is missing
        compareTime(verdict,
                    QStringLiteral("2024-03-31T%1:%2:00")
                        .arg(minute / 60, 2, 10, QLatin1Char('0'))
                        .arg(minute % 60, 2, 10, QLatin1Char('0')));
    if (zone.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", zone);
    QVERIFY2(verdict.isGood(), verdict.firstFailure());
}

void NumbersTest::timesWritten()
{
    // As Qt writes them, whatever the zone and the year.
    const QDate day(2024, 3, 5);
    const QTime clock(4, 7, 9, 42);
    QVector<QDateTime> times = {QDateTime(), QDateTime(QDate(), clock)};
    for (const QDate date : {day, QDate(1, 1, 1), QDate(9999, 12, 31), QDate(10000, 1, 1), QDate(-1, 12, 31)}) {
        times.append(QDateTime(date, clock));
        times.append(TestValues::timeInUtc(date, clock));
        times.append(TestValues::timeAhead(date, clock, -5400));
        times.append(QDateTime(date, clock, QTimeZone("Asia/Kathmandu")));
    }
    for (const QDateTime& time : std::as_const(times))
        QCOMPARE(isoText(time), time.toString(Qt::ISODate));
    QCOMPARE(isoText(QDateTime(day, clock)), QStringLiteral("2024-03-05T04:07:09"));
    QCOMPARE(isoText(TestValues::timeInUtc(day, clock)), QStringLiteral("2024-03-05T04:07:09Z"));
    QCOMPARE(isoText(TestValues::timeAhead(day, clock, 5400)), QStringLiteral("2024-03-05T04:07:09+01:30"));
    QCOMPARE(isoText(QDateTime(QDate(10000, 1, 1), clock)), QString());
    QCOMPARE(isoText(QDateTime()), QString());

    QCOMPARE(timeDigits(QDateTime(day, clock)), QStringLiteral("240305040709042"));
    QCOMPARE(timeDigits(QDateTime(QDate(2100, 12, 31), QTime(23, 59, 58, 7))), QStringLiteral("001231235958007"));
}

QTEST_APPLESS_MAIN(NumbersTest)
#include "numbers_test.moc"
