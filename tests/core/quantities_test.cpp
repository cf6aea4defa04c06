#include "support/elementtest.h"

#include <arvxml/quantities.h>

#include <cfenv>
#include <cmath>
#include <limits>
#include <memory>
#include <type_traits>

#ifdef __SSE2__
#include <xmmintrin.h>
#endif

using namespace ArvXml;
using ElementTest::readError;
using ElementTest::written;

namespace {

template <typename T, typename = void>
struct HasUnit : std::false_type {
};
template <typename T>
struct HasUnit<T, std::void_t<decltype(std::declval<const T&>().unit())>> : std::true_type {
};
template <typename T, typename = void>
struct HasSetUnit : std::false_type {
};
template <typename T>
struct HasSetUnit<T, std::void_t<decltype(std::declval<T&>().setUnit(QString()))>> : std::true_type {
};

/// A quantity of any kind.
class Quantity {
public:
    virtual ~Quantity() = default;
    virtual IXmlElement& element() = 0;
    virtual double value() const = 0;
    virtual void setValue(double value) = 0;
    virtual QString unit() const = 0;
    virtual QString version() const = 0;
    virtual void setVersion(const QString& version) = 0;
    virtual std::shared_ptr<Quantity> copy() const = 0;
    virtual void assign(const Quantity& other) = 0;

    QString read(const QString& xml) { return readError(element(), xml); }
    QString write() { return written(element(), QStringLiteral("Q")); }
};

template <typename T, auto Get, auto Set>
class QuantityOf : public Quantity {
public:
    IXmlElement& element() override { return m_object; }
    double value() const override { return (m_object.*Get)(); }
    void setValue(double value) override
    {
        if constexpr (std::is_same_v<T, XmlLengthType>)
            (m_object.*Set)(static_cast<int>(value));
        else
            (m_object.*Set)(value);
    }
    QString unit() const override
    {
        if constexpr (HasUnit<T>::value)
            return m_object.unit();
        else
            return QString();
    }
    QString version() const override { return m_object.version(); }
    void setVersion(const QString& version) override { m_object.setVersion(version); }
    std::shared_ptr<Quantity> copy() const override { return std::make_shared<QuantityOf>(*this); }
    void assign(const Quantity& other) override { m_object = static_cast<const QuantityOf&>(other).m_object; }

private:
    T m_object;
};

using Make = std::shared_ptr<Quantity> (*)();

template <typename T, auto Get, auto Set>
std::shared_ptr<Quantity> make()
{
    return std::make_shared<QuantityOf<T, Get, Set>>();
}

const Make dBm = make<XmlDBMType, &XmlDBMType::dBm, &XmlDBMType::setDBM>;
const Make decibel = make<XmlDecibelType, &XmlDecibelType::decibel, &XmlDecibelType::setDecibel>;
const Make degrees = make<XmlDegreesType, &XmlDegreesType::degrees, &XmlDegreesType::setDegrees>;
const Make length = make<XmlLengthType, &XmlLengthType::length, &XmlLengthType::setLength>;
const Make power = make<XmlPowerType, &XmlPowerType::power, &XmlPowerType::setPower>;
const Make freq = make<XmlFreqType, &XmlFreqType::frequency_MHz, &XmlFreqType::setFrequency_MHz>;
const Make bandwidth = make<XmlBandwidthType, &XmlBandwidthType::bandwidth_khz, &XmlBandwidthType::setBandwidth>;
const Make fieldstrength =
    make<XmlFieldstrengthType, &XmlFieldstrengthType::fieldstrength, &XmlFieldstrengthType::setFieldstrength>;
const Make sinad = make<XmlSinadType, &XmlSinadType::sinad, &XmlSinadType::setSinad>;

const double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();
const double tiny = 2.2250738585072014e-308;
const double huge = 1.7976931348623157e308;

double above(double value)
{
    return std::nextafter(value, infinity);
}
double below(double value)
{
    return std::nextafter(value, -infinity);
}

/// Whether both are the same to the last bit, the sign of zero included.
bool same(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || (a == b && std::signbit(a) == std::signbit(b));
}

const QString degreeSign = QString(QChar(0x00B0));

} // namespace

Q_DECLARE_METATYPE(Make)

#define COMPARE_EXACTLY(actual, expected)                                                                              \
    QVERIFY2(                                                                                                          \
        same(actual, expected),                                                                                        \
        qPrintable(QString::number(actual, 'g', 17) + QLatin1String(" is not ") + QString::number(expected, 'g', 17)))

class QuantitiesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // First of all: tables are made with the first quantity, and a program may have every such event trapped.
    void noFloatingPointExceptions()
    {
        std::feclearexcept(FE_ALL_EXCEPT);
        const XmlDecibelType first;
        const int raised = std::fetestexcept(FE_ALL_EXCEPT);
        QCOMPARE(raised, 0);
        QCOMPARE(first.decibel(), 0.0);
    }

#ifdef __SSE2__
    // Programs compiled with -ffast-math take the smallest numbers for zero.
    void zeroIsNoFrequencyWithoutDenormals()
    {
        constexpr unsigned denormalsAreZero = 0x8040;
        const unsigned before = _mm_getcsr();
        _mm_setcsr(before | denormalsAreZero);
        XmlFreqType frequency;
        frequency.setFrequency_MHz(0.0);
        const bool isValid = frequency.isValid();
        _mm_setcsr(before);
        QVERIFY(!isValid);
    }
#endif

    void accessors()
    {
        static_assert(std::is_same_v<decltype(std::declval<const XmlDBMType&>().unit()), const QString&>);
        static_assert(std::is_same_v<decltype(std::declval<const XmlDecibelType&>().unit()), const QString&>);
        static_assert(std::is_same_v<decltype(std::declval<const XmlDegreesType&>().unit()), const QString&>);
        static_assert(std::is_same_v<decltype(std::declval<const XmlLengthType&>().unit()), const QString&>);
        static_assert(std::is_same_v<decltype(std::declval<const XmlPowerType&>().unit()), const QString&>);
        static_assert(std::is_same_v<decltype(std::declval<const XmlFreqType&>().unit()), const QString&>);
        static_assert(std::is_same_v<decltype(std::declval<const XmlBandwidthType&>().unit()), const QString&>);
        static_assert(std::is_same_v<decltype(std::declval<const XmlFieldstrengthType&>().unit()), const QString&>);
        static_assert(!HasUnit<XmlSinadType>::value);

        static_assert(HasSetUnit<XmlFreqType>::value);
        static_assert(!HasSetUnit<XmlDBMType>::value && !HasSetUnit<XmlDecibelType>::value);
        static_assert(!HasSetUnit<XmlDegreesType>::value && !HasSetUnit<XmlLengthType>::value);
        static_assert(!HasSetUnit<XmlPowerType>::value && !HasSetUnit<XmlBandwidthType>::value);
        static_assert(!HasSetUnit<XmlFieldstrengthType>::value && !HasSetUnit<XmlSinadType>::value);

        static_assert(std::is_same_v<decltype(std::declval<const XmlLengthType&>().length()), int>);
        static_assert(std::is_same_v<decltype(&XmlLengthType::setLength), void (XmlLengthType::*)(int)>);
        static_assert(std::is_same_v<decltype(std::declval<const XmlBandwidthType&>().bandwidth_khz()), double>);
        static_assert(std::is_same_v<decltype(std::declval<const XmlFreqType&>().frequency_MHz()), double>);

        XmlFreqType frequency;
        frequency.setUnit(QStringLiteral("furlong"));
        QCOMPARE(frequency.unit(), QStringLiteral("furlong"));
        COMPARE_EXACTLY(frequency.frequency_MHz(), -9.9);
    }

    void defaults_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("xml");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QString>("error");
        QTest::newRow("a level is too low")
            << dBm << -110.0 << QStringLiteral("dBm")
            << QStringLiteral("<Q version=\"1.0\" unit=\"dBm\">-110.000000000</Q>") << false
            << QStringLiteral("+++ in XmlDBMType Begin:\nIllegal decibel.\n--- in XmlDBMType End");
        QTest::newRow("a ratio is a negative zero, which is not enough")
            << decibel << -0.0 << QStringLiteral("dB") << QStringLiteral("<Q version=\"1.0\" unit=\"dB\">0.000000</Q>")
            << false << QStringLiteral("+++ in XmlDecibelType Begin:\nIllegal decibel.\n--- in XmlDecibelType End");
        QTest::newRow("an angle is a negative zero, which is valid")
            << degrees << -0.0 << degreeSign
            << QString(QStringLiteral("<Q version=\"1.0\" unit=\"") + degreeSign + QStringLiteral("\">0.0</Q>")) << true
            << QString();
        QTest::newRow("a length is zero and valid")
            << length << 0.0 << QStringLiteral("m") << QStringLiteral("<Q version=\"1.0\" unit=\"m\">0</Q>") << true
            << QString();
        QTest::newRow("a power is valid")
            << power << -9.9 << QStringLiteral("W")
            << QStringLiteral("<Q version=\"1.0\" unit=\"W\">-9.900000000000000</Q>") << true << QString();
        QTest::newRow("a frequency is negative")
            << freq << -9.9 << QStringLiteral("MHz") << QStringLiteral("<Q version=\"1.0\" unit=\"MHz\">-9.900000</Q>")
            << false << QStringLiteral("+++ in XmlFreqType Begin:\nIllegal frequency.\n--- in XmlFreqType End");
        QTest::newRow("a bandwidth is negative") << bandwidth << -1.0 << QStringLiteral("kHz")
                                                 << QStringLiteral("<Q version=\"1.0\" unit=\"kHz\">-1</Q>") << false
                                                 << QStringLiteral("+++ in XmlBandwidthType Begin:\n"
                                                                   "XmlDfPrecisionType: Illegal precision.\n"
                                                                   "--- in XmlBandwidthType End");
        QTest::newRow("a field strength is just too low")
            << fieldstrength << -99999.999 << QStringLiteral("dBm")
            << QStringLiteral("<Q version=\"1.0\" unit=\"dBm\">-99999.998999999996158</Q>") << false
            << QStringLiteral("+++ in XmlFieldstrengthType Begin:\n"
                              "Illegal fieldstrength.\n"
                              "--- in XmlFieldstrengthType End");
        QTest::newRow("a SINAD is zero, which is not enough")
            << sinad << 0.0 << QString() << QStringLiteral("<Q version=\"1.0\">0.000000</Q>") << false
            << QStringLiteral("+++ in XmlSinadType Begin:\nIllegal frequency.\n--- in XmlSinadType End");
    }
    void defaults()
    {
        QFETCH(Make, make);
        QFETCH(double, value);
        QFETCH(QString, unit);
        QFETCH(QString, xml);
        QFETCH(bool, valid);
        QFETCH(QString, error);

        const auto quantity = make();
        const auto check = [&] {
            COMPARE_EXACTLY(quantity->value(), value);
            QCOMPARE(quantity->unit(), unit);
            QCOMPARE(quantity->version(), QStringLiteral("1.0"));
            QCOMPARE(quantity->write(), xml);
            QCOMPARE(quantity->element().isValid(), valid);
            QCOMPARE(quantity->element().syntaxError(), error);
        };
        check();

        // A reset makes a used object new again, whether it was set, read, or failed to be read.
        quantity->setValue(5.0);
        quantity->setVersion(QStringLiteral("2.0"));
        quantity->element().reset();
        check();
        QCOMPARE(quantity->read(QStringLiteral("<Q unit=\"parsec\" version=\"3.0\">17</Q>")), QString());
        QCOMPARE(quantity->version(), QStringLiteral("3.0"));
        quantity->element().reset();
        check();
        QVERIFY(!quantity->read(QStringLiteral("<Q unit=\"parsec\" version=\"3.0\">x</Q>")).isEmpty());
        quantity->element().reset();
        check();

        // A text that is no number leaves the default, in place of what was held.
        quantity->setValue(5.0);
        QVERIFY(!quantity->read(QStringLiteral("<Q unit=\"parsec\">abc</Q>")).isEmpty());
        COMPARE_EXACTLY(quantity->value(), value);
    }

    void settersDoNotCheck_data()
    {
        quantities();
    }
    void settersDoNotCheck()
    {
        QFETCH(Make, make);
        const auto quantity = make();
        for (const double value : {0.0, 1.0, -1.0, 91.0, 2147483647.0, -2147483648.0}) {
            quantity->setValue(value);
            COMPARE_EXACTLY(quantity->value(), value);
        }
        if (make != length) {
            for (const double value : {-0.0, 0.1, huge, tiny, -infinity, notANumber}) {
                quantity->setValue(value);
                COMPARE_EXACTLY(quantity->value(), value);
            }
        }
        for (const QString& version : {QStringLiteral("2.0"), QStringLiteral("x"), QString()}) {
            quantity->setVersion(version);
            QCOMPARE(quantity->version(), version);
        }
        QCOMPARE(quantity->unit(), make()->unit());
    }

    void writing_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("a level has nine decimals") << dBm << 3.0 << QStringLiteral("3.000000000");
        QTest::newRow("a level is rounded") << dBm << -1.23456789051 << QStringLiteral("-1.234567891");
        QTest::newRow("a level of not a number") << dBm << notANumber << QStringLiteral("nan");
        QTest::newRow("a ratio has six decimals") << decibel << 3.0 << QStringLiteral("3.000000");
        QTest::newRow("a ratio is rounded") << decibel << 0.1234567 << QStringLiteral("0.123457");
        QTest::newRow("an angle has one decimal") << degrees << 12.34 << QStringLiteral("12.3");
        QTest::newRow("an angle is rounded up") << degrees << 12.36 << QStringLiteral("12.4");
        QTest::newRow("an illegal angle is written all the same") << degrees << -400.0 << QStringLiteral("-400.0");
        QTest::newRow("a length") << length << 10.0 << QStringLiteral("10");
        QTest::newRow("a negative length") << length << -3.0 << QStringLiteral("-3");
        QTest::newRow("the greatest length") << length << 2147483647.0 << QStringLiteral("2147483647");
        QTest::newRow("the least length") << length << -2147483648.0 << QStringLiteral("-2147483648");
        QTest::newRow("a power has fifteen decimals") << power << 10.0 << QStringLiteral("10.000000000000000");
        QTest::newRow("a power is exact") << power << 0.1 << QStringLiteral("0.100000000000000");
        QTest::newRow("a frequency has six decimals") << freq << 2400.0 << QStringLiteral("2400.000000");
        QTest::newRow("a frequency is rounded") << freq << 0.1234567 << QStringLiteral("0.123457");
        QTest::newRow("a bandwidth has no decimals of its own") << bandwidth << 25.0 << QStringLiteral("25");
        QTest::newRow("a bandwidth has those needed") << bandwidth << 12.5 << QStringLiteral("12.5");
        QTest::newRow("a bandwidth has six digits") << bandwidth << 1234.5678 << QStringLiteral("1234.57");
        QTest::newRow("a bandwidth with seven digits") << bandwidth << 1234567.0 << QStringLiteral("1.23457e+06");
        QTest::newRow("a great bandwidth") << bandwidth << 1000000.0 << QStringLiteral("1e+06");
        QTest::newRow("a small bandwidth") << bandwidth << 0.00001 << QStringLiteral("1e-05");
        QTest::newRow("a field strength has fifteen decimals")
            << fieldstrength << -100.0 << QStringLiteral("-100.000000000000000");
        QTest::newRow("a SINAD has six decimals") << sinad << 12.0 << QStringLiteral("12.000000");
        QTest::newRow("a SINAD is rounded") << sinad << 0.1234567 << QStringLiteral("0.123457");
        QTest::newRow("an infinite SINAD") << sinad << infinity << QStringLiteral("inf");
    }
    void writing()
    {
        QFETCH(Make, make);
        QFETCH(double, value);
        QFETCH(QString, text);
        const auto quantity = make();
        quantity->setValue(value);
        quantity->setVersion(QStringLiteral("2.0")); // written, supported or not
        const QString unit =
            make == sinad ? QString() : QString(QLatin1String(" unit=\"") + quantity->unit() + QLatin1Char('"'));
        QCOMPARE(written(quantity->element(), QStringLiteral("AnyTag")),
                 QString(QLatin1String("<AnyTag version=\"2.0\"") + unit + QLatin1Char('>') + text
                         + QLatin1String("</AnyTag>")));
    }

    void writingFrequencies_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("xml");
        QTest::newRow("Hz") << 2.4 << QStringLiteral("Hz")
                            << QStringLiteral("<F version=\"1.0\" unit=\"Hz\">2400000.000000</F>");
        QTest::newRow("kHz") << 2.4 << QStringLiteral("kHz")
                             << QStringLiteral("<F version=\"1.0\" unit=\"kHz\">2400.000000</F>");
        QTest::newRow("MHz") << 2.4 << QStringLiteral("MHz")
                             << QStringLiteral("<F version=\"1.0\" unit=\"MHz\">2.400000</F>");
        QTest::newRow("GHz") << 2.4 << QStringLiteral("GHz")
                             << QStringLiteral("<F version=\"1.0\" unit=\"GHz\">0.002400</F>");
        QTest::newRow("GHz, to the last decimal")
            << 123456.789 << QStringLiteral("GHz") << QStringLiteral("<F version=\"1.0\" unit=\"GHz\">123.456789</F>");
        QTest::newRow("an unknown unit scales nothing")
            << 2.4 << QStringLiteral("THz") << QStringLiteral("<F version=\"1.0\" unit=\"THz\">2.400000</F>");
        QTest::newRow("the letters of units are compared exactly")
            << 2.4 << QStringLiteral("khz") << QStringLiteral("<F version=\"1.0\" unit=\"khz\">2.400000</F>");
        QTest::newRow("an empty unit") << 2.4 << QString()
                                       << QStringLiteral("<F version=\"1.0\" unit=\"\">2.400000</F>");
        QTest::newRow("an illegal frequency is scaled too")
            << -9.9 << QStringLiteral("kHz") << QStringLiteral("<F version=\"1.0\" unit=\"kHz\">-9900.000000</F>");
        QTest::newRow("a unit with marks of XML")
            << 1.0 << QStringLiteral("<&\"")
            << QStringLiteral("<F version=\"1.0\" unit=\"&lt;&amp;&quot;\">1.000000</F>");
    }
    void writingFrequencies()
    {
        QFETCH(double, value);
        QFETCH(QString, unit);
        QFETCH(QString, xml);
        XmlFreqType frequency;
        frequency.setFrequency_MHz(value);
        frequency.setUnit(unit);
        COMPARE_EXACTLY(frequency.frequency_MHz(), value); // the unit does not change the value held
        QCOMPARE(written(frequency, QStringLiteral("F")), xml);
    }

    void readingFrequencies_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::newRow("Hz") << QStringLiteral("Hz") << QStringLiteral("2400000") << 2400000 * 1e-6;
        QTest::newRow("Hz by multiplying") << QStringLiteral("Hz") << QStringLiteral("5") << 5 * 1e-6;
        QTest::newRow("kHz") << QStringLiteral("kHz") << QStringLiteral("2400") << 2400 * 0.001;
        QTest::newRow("kHz by multiplying") << QStringLiteral("kHz") << QStringLiteral("9") << 9 * 0.001;
        QTest::newRow("MHz") << QStringLiteral("MHz") << QStringLiteral("2400.5") << 2400.5;
        QTest::newRow("GHz") << QStringLiteral("GHz") << QStringLiteral("0.7") << 0.7 * 1000.0;
        QTest::newRow("a negative number") << QStringLiteral("GHz") << QStringLiteral("-1") << -1000.0;
        QTest::newRow("an unknown unit keeps the value") << QStringLiteral("THz") << QStringLiteral("5") << 77.0;
        QTest::newRow("the letters of units are compared exactly")
            << QStringLiteral("mhz") << QStringLiteral("5") << 77.0;
        QTest::newRow("a unit with a blank is unknown") << QStringLiteral("MHz ") << QStringLiteral("5") << 77.0;
    }
    void readingFrequencies()
    {
        QFETCH(QString, unit);
        QFETCH(QString, text);
        QFETCH(double, value);
        XmlFreqType frequency;
        frequency.setFrequency_MHz(77.0);
        QCOMPARE(readError(frequency, QStringLiteral("<F unit=\"%1\">%2</F>").arg(unit, text)), QString());
        COMPARE_EXACTLY(frequency.frequency_MHz(), value);
        QCOMPARE(frequency.unit(), unit);
    }

    void anUnknownUnitOfFrequency()
    {
        XmlFreqType frequency;
        frequency.setFrequency_MHz(2.0);
        QCOMPARE(readError(frequency, QStringLiteral("<F unit=\"THz\">5</F>")), QString());
        COMPARE_EXACTLY(frequency.frequency_MHz(), 2.0);
        QCOMPARE(written(frequency, QStringLiteral("F")),
                 QStringLiteral("<F version=\"1.0\" unit=\"THz\">2.000000</F>"));
        QVERIFY(!frequency.isValid());
        QCOMPARE(frequency.syntaxError(),
                 QStringLiteral("+++ in XmlFreqType Begin:\nIllegal unit.\n--- in XmlFreqType End"));
        // A text that is no number is refused with any unit.
        QCOMPARE(readError(frequency, QStringLiteral("<F unit=\"THz\">five</F>")),
                 QStringLiteral("in XmlFreqType (line 1, column 19): Illegal value (must be numeric)."));
        COMPARE_EXACTLY(frequency.frequency_MHz(), -9.9);
    }

    void aFrequencyThereAndBack()
    {
        XmlFreqType frequency;
        QCOMPARE(readError(frequency, QStringLiteral("<F version=\"1.0\" unit=\"kHz\">2400</F>")), QString());
        QCOMPARE(frequency.frequency_MHz(), 2.4);
        QCOMPARE(written(frequency, QStringLiteral("F")),
                 QStringLiteral("<F version=\"1.0\" unit=\"kHz\">2400.000000</F>"));
    }

    void readingNumbers_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        const QString fraction = QStringLiteral("12.5");
        for (const auto& [name, make] : all()) {
            QTest::addRow("%s: an integer", name) << make << QStringLiteral("25") << 25.0;
            QTest::addRow("%s: a negative integer", name) << make << QStringLiteral("-25") << -25.0;
            QTest::addRow("%s: a plus sign", name) << make << QStringLiteral("+25") << 25.0;
            QTest::addRow("%s: blanks around", name) << make << QStringLiteral("\n 25\t") << 25.0;
            QTest::addRow("%s: leading zeros are decimal", name) << make << QStringLiteral("010") << 10.0;
            QTest::addRow("%s: the greatest 32-bit integer", name)
                << make << QStringLiteral("2147483647") << 2147483647.0;
            QTest::addRow("%s: the least 32-bit integer", name)
                << make << QStringLiteral("-2147483648") << -2147483648.0;
            if (make != length && make != bandwidth) {
                QTest::addRow("%s: a fraction", name) << make << fraction << 12.5;
                QTest::addRow("%s: an exponent", name) << make << QStringLiteral("1e3") << 1000.0;
                QTest::addRow("%s: a number past 32 bits", name)
                    << make << QStringLiteral("2147483648") << 2147483648.0;
                QTest::addRow("%s: no digit before the point", name) << make << QStringLiteral("-.5") << -0.5;
                QTest::addRow("%s: not a number", name) << make << QStringLiteral("nan") << notANumber;
                QTest::addRow("%s: infinite", name) << make << QStringLiteral("-inf") << -infinity;
            }
        }
    }
    void readingNumbers()
    {
        QFETCH(Make, make);
        QFETCH(QString, text);
        QFETCH(double, value);
        const auto quantity = make();
        quantity->setValue(77.0);
        const QString unit = make()->unit(); // their own, so that nothing is scaled
        QCOMPARE(quantity->read(QStringLiteral("<Q unit=\"%1\">%2</Q>").arg(unit, text)), QString());
        COMPARE_EXACTLY(quantity->value(), value);
        QCOMPARE(quantity->unit(), unit);
        QCOMPARE(quantity->version(), QStringLiteral("1.0"));
    }

    void illegalNumbers_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("fallback");
        struct Kind {
            Make make;
            const char* className;
            double fallback;
        };
        const Kind kinds[] = {
            {dBm, "XmlDBMType", -110.0},           {decibel, "XmlDecibelType", -0.0},
            {degrees, "XmlDegreesType", -0.0},     {length, "XmlLengthType", 0.0},
            {power, "XmlPowerType", -9.9},         {freq, "XmlFreqType", -9.9},
            {bandwidth, "XmlBandwidthType", -1.0}, {fieldstrength, "XmlFieldstrengthType", -99999.999},
            {sinad, "XmlSinadType", 0.0},
        };
        const auto add = [](const Kind& kind, const char* name, const QString& text) {
            QTest::addRow("%s: %s", kind.className, name)
                << kind.make << QString::fromLatin1(kind.className) << text << kind.fallback;
        };
        for (const Kind& kind : kinds) {
            add(kind, "letters", QStringLiteral("abc"));
            add(kind, "blanks alone", QStringLiteral("   "));
            add(kind, "a decimal comma", QStringLiteral("1,5"));
            add(kind, "a unit behind", QStringLiteral("5m"));
            add(kind, "two numbers", QStringLiteral("1 2"));
            add(kind, "hexadecimal", QStringLiteral("0x10"));
            if (kind.make == length || kind.make == bandwidth) {
                add(kind, "a fraction", QStringLiteral("12.5"));
                add(kind, "another fraction", QStringLiteral("25.5"));
                add(kind, "a fraction of zero", QStringLiteral("25.0"));
                add(kind, "an exponent", QStringLiteral("1e3"));
                add(kind, "past 32 bits", QStringLiteral("2147483648"));
                add(kind, "past 32 bits downwards", QStringLiteral("-2147483649"));
                add(kind, "not a number", QStringLiteral("nan"));
            } else {
                add(kind, "too great a number", QStringLiteral("1e400"));
            }
        }
    }
    void illegalNumbers()
    {
        QFETCH(Make, make);
        QFETCH(QString, className);
        QFETCH(QString, text);
        QFETCH(double, fallback);
        const auto quantity = make();
        quantity->setValue(77.0);
        const QString error = quantity->read(QStringLiteral("<Q version=\"2.0\"\nunit=\"GHz\">\n%1</Q>").arg(text));
        QCOMPARE(error,
                 QStringLiteral("in %1 (line 3, column %2): Illegal value (must be numeric).")
                     .arg(className)
                     .arg(text.size() + 1));
        COMPARE_EXACTLY(quantity->value(), fallback);
        QCOMPARE(quantity->version(), QStringLiteral("2.0")); // what was read until then is kept

        // A failed element can be checked, written, copied, reset and read again.
        QVERIFY(!quantity->element().isValid());
        QVERIFY(quantity->element().syntaxError().contains(QStringLiteral("Version \"2.0\" not supported")));
        QVERIFY(quantity->write().startsWith(QStringLiteral("<Q version=\"2.0\"")));
        COMPARE_EXACTLY(quantity->copy()->value(), fallback);
        QCOMPARE(quantity->read(QStringLiteral("<Q unit=\"MHz\">5</Q>")), QString());
        COMPARE_EXACTLY(quantity->value(), 5.0);
        QCOMPARE(quantity->version(), QStringLiteral("1.0"));
    }

    void theUnitAttribute_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("missing"); // the error without a unit
        QTest::newRow("a level has a fixed unit") << dBm << QString();
        QTest::newRow("a ratio has a fixed unit") << decibel << QString();
        QTest::newRow("an angle has a fixed unit") << degrees << QString();
        QTest::newRow("a SINAD has none") << sinad << QString();
        QTest::newRow("a length reads it")
            << length << QStringLiteral("in XmlLengthType (line 2, column 12): Missing attribute: \"unit\".");
        QTest::newRow("a power reads it")
            << power << QStringLiteral("in XmlPowerType (line 2, column 12): Missing attribute: \"unit\".");
        QTest::newRow("a frequency reads it")
            << freq << QStringLiteral("in XmlFreqType (line 2, column 12): Missing attribute: \"unit\".");
        QTest::newRow("a bandwidth reads it")
            << bandwidth << QStringLiteral("in XmlBandwidthType (line 2, column 12): Missing attribute: \"unit\".");
        QTest::newRow("a field strength reads it")
            << fieldstrength
            << QStringLiteral("in XmlFieldstrengthType (line 2, column 12): Missing attribute: \"unit\".");
    }
    void theUnitAttribute()
    {
        QFETCH(Make, make);
        QFETCH(QString, missing);
        const bool isRead = !missing.isEmpty();
        const QString ownUnit = make()->unit();

        for (const QString& attribute :
             {QString(), QStringLiteral("unit=\"\""), QStringLiteral("Unit=\"W\""), QStringLiteral("units=\"W\"")}) {
            const auto quantity = make();
            quantity->setValue(77.0);
            const QString error = quantity->read(QStringLiteral("<Q %1\nversion=\"2\">5</Q>").arg(attribute));
            QCOMPARE(error, missing);
            COMPARE_EXACTLY(quantity->value(), isRead ? 77.0 : 5.0); // an error ends the reading
            QCOMPARE(quantity->unit(), ownUnit);
            QCOMPARE(quantity->version(), QStringLiteral("2"));
        }

        const auto quantity = make();
        QCOMPARE(quantity->read(QStringLiteral("<Q version=\"2\" unit=\"parsec\"/>")), QString());
        QCOMPARE(quantity->unit(), isRead ? QStringLiteral("parsec") : ownUnit);
        QCOMPARE(quantity->version(), QStringLiteral("2"));
        const QString unitWritten = make == sinad ? QString()
            : isRead                              ? QStringLiteral(" unit=\"parsec\"")
                                                  : QStringLiteral(" unit=\"%1\"").arg(ownUnit);
        QVERIFY(quantity->write().startsWith(QStringLiteral("<Q version=\"2\"%1>").arg(unitWritten)));
        // Blanks are a text like any other.
        QCOMPARE(quantity->read(QStringLiteral("<Q version=\" \" unit=\"  \"/>")), QString());
        QCOMPARE(quantity->unit(), isRead ? QStringLiteral("  ") : ownUnit);
        QCOMPARE(quantity->version(), QStringLiteral(" "));
        QCOMPARE(quantity->read(QStringLiteral("<Q unit=\"parsec\"/>")), QString());
        if (isRead) {
            QVERIFY(!quantity->read(QStringLiteral("<Q/>")).isEmpty());
            QCOMPARE(quantity->unit(), QStringLiteral("parsec")); // kept when missing
        }
    }

    void anEmptyElementKeepsTheValue_data()
    {
        quantities();
    }
    void anEmptyElementKeepsTheValue()
    {
        QFETCH(Make, make);
        for (const QString& xml : {QStringLiteral("<Q unit=\"furlong\"/>"), QStringLiteral("<Q unit=\"furlong\"></Q>"),
                                   QStringLiteral("<Q unit=\"furlong\"><!-- 5 --></Q>")}) {
            const auto quantity = make();
            quantity->setValue(77.0);
            quantity->setVersion(QStringLiteral("2.0"));
            QCOMPARE(quantity->read(xml), QString());
            COMPARE_EXACTLY(quantity->value(), 77.0);
            QCOMPARE(quantity->version(), QStringLiteral("1.0"));
        }
    }

    void refusedTags_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("className");
        QTest::newRow("level") << dBm << QStringLiteral("XmlDBMType");
        QTest::newRow("ratio") << decibel << QStringLiteral("XmlDecibelType");
        QTest::newRow("angle") << degrees << QStringLiteral("XmlDegreesType");
        QTest::newRow("length") << length << QStringLiteral("XmlLengthType");
        QTest::newRow("power") << power << QStringLiteral("XmlPowerType");
        QTest::newRow("frequency") << freq << QStringLiteral("XmlFreqType");
        QTest::newRow("bandwidth") << bandwidth << QStringLiteral("XmlBandwidthType");
        QTest::newRow("field strength") << fieldstrength << QStringLiteral("XmlFieldstrengthType");
        QTest::newRow("SINAD") << sinad << QStringLiteral("XmlSinadType");
    }
    void refusedTags()
    {
        QFETCH(Make, make);
        QFETCH(QString, className);

        const auto quantity = make();
        QCOMPARE(quantity->read(QStringLiteral("<Q unit=\"MHz\">5<Q>6</Q></Q>")),
                 QStringLiteral("in %1 (line 1, column 18): Unexpected token \"StartElement\".").arg(className));
        QCOMPARE(quantity->read(QStringLiteral("<Q\nunit=\"MHz\"><b>6</b></Q>")),
                 QStringLiteral("in %1 (line 2, column 14): Unexpected token \"StartElement\".").arg(className));

        {
            QXmlStreamReader reader(QStringLiteral("<Q unit=\"MHz\">5\n</Q>"));
            reader.readNextStartElement();
            quantity->element().processXml(reader, QStringLiteral("q"));
            QCOMPARE(reader.errorString(),
                     QStringLiteral("in %1 (line 2, column 4): Unexpected token \"EndElement\".").arg(className));
        }
        {
            // The end tag is the last token read.
            QXmlStreamReader reader(QStringLiteral("<All><Q unit=\"MHz\">6</Q>7</All>"));
            reader.readNextStartElement();
            reader.readNextStartElement();
            quantity->element().processXml(reader, QStringLiteral("Q"));
            QVERIFY(!reader.hasError());
            QVERIFY(reader.isEndElement());
            QCOMPARE(reader.name().toString(), QStringLiteral("Q"));
            COMPARE_EXACTLY(quantity->value(), 6.0);

            // From there, as from the text that follows, nothing is read.
            quantity->setVersion(QStringLiteral("2.0"));
            quantity->element().processXml(reader, QStringLiteral("Q"));
            QCOMPARE(reader.errorString(),
                     QStringLiteral("in %1 (line 1, column 24): Parse error (wrong position).").arg(className));
            COMPARE_EXACTLY(quantity->value(), 6.0);
            QCOMPARE(quantity->version(), QStringLiteral("1.0"));
        }
        {
            QXmlStreamReader reader(QStringLiteral("<Q unit=\"GHz\" version=\"2.0\">\n7</Q>"));
            reader.readNextStartElement();
            QCOMPARE(reader.readNext(), QXmlStreamReader::Characters);
            const QString unit = quantity->unit();
            quantity->element().processXml(reader, QStringLiteral("Q"));
            QCOMPARE(reader.errorString(),
                     QStringLiteral("in %1 (line 2, column 2): Parse error (wrong position).").arg(className));
            COMPARE_EXACTLY(quantity->value(), 6.0);
            QCOMPARE(quantity->unit(), unit);
            QCOMPARE(quantity->version(), QStringLiteral("1.0"));
        }
    }

    void values_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QString>("problem");
        struct Positive {
            Make make;
            const char* name;
            QString problem;
        };
        const Positive positives[] = {
            {dBm, "a level", QStringLiteral("Illegal decibel.")},
            {decibel, "a ratio", QStringLiteral("Illegal decibel.")},
            {sinad, "a SINAD", QStringLiteral("Illegal frequency.")},
        };
        for (const auto& [make, name, problem] : positives) {
            const auto good = [&, make = make, name = name](const char* what, double value) {
                QTest::addRow("%s of %s is valid", name, what) << make << value << true << QString();
            };
            const auto bad = [&, make = make, name = name, problem = problem](const char* what, double value) {
                QTest::addRow("%s of %s is not valid", name, what) << make << value << false << problem;
            };
            good("3", 3.0);
            good("a millionth", 1e-6);
            good("just above the lower bound", above(tiny));
            bad("the lower bound", tiny);
            bad("a number too small", below(tiny));
            bad("zero", 0.0);
            bad("negative zero", -0.0);
            bad("-1", -1.0);
            bad("-110", -110.0);
            good("just below the upper bound", below(huge));
            bad("the upper bound", huge);
            bad("infinity", infinity);
            bad("less than infinity", -infinity);
            bad("not a number", notANumber);
        }

        const QString angle = QStringLiteral("Illegal decibel.");
        QTest::newRow("an angle of 0 is valid") << degrees << 0.0 << true << QString();
        QTest::newRow("an angle of negative zero is valid") << degrees << -0.0 << true << QString();
        QTest::newRow("an angle below 0 is not") << degrees << below(0.0) << false << angle;
        QTest::newRow("an angle of -0.5 is not") << degrees << -0.5 << false << angle;
        QTest::newRow("an angle of 45 is valid") << degrees << 45.0 << true << QString();
        QTest::newRow("an angle of 90 is valid") << degrees << 90.0 << true << QString();
        QTest::newRow("an angle above 90 is not") << degrees << above(90.0) << false << angle;
        QTest::newRow("an angle of 90.1 is not") << degrees << 90.1 << false << angle;
        QTest::newRow("an angle that is not a number is not") << degrees << notANumber << false << angle;

        for (const double value : {0.0, -1.0, 2147483647.0, -2147483648.0})
            QTest::addRow("a length of %.0f is valid", value) << length << value << true << QString();

        const QString tooWeak = QStringLiteral("Illegal power.");
        QTest::newRow("a power of -60 is valid") << power << -60.0 << true << QString();
        QTest::newRow("a power below -60 is not") << power << below(-60.0) << false << tooWeak;
        QTest::newRow("a power of -60.000001 is not") << power << -60.000001 << false << tooWeak;
        QTest::newRow("an infinite power is valid") << power << infinity << true << QString();
        QTest::newRow("a power that is not a number has no message") << power << notANumber << false << QString();

        const QString noFrequency = QStringLiteral("Illegal frequency.");
        QTest::newRow("a frequency above 0 is valid") << freq << above(0.0) << true << QString();
        QTest::newRow("a frequency of 0 is not") << freq << 0.0 << false << noFrequency;
        QTest::newRow("a frequency of negative zero is not") << freq << -0.0 << false << noFrequency;
        QTest::newRow("a negative frequency is not") << freq << -1.0 << false << noFrequency;
        QTest::newRow("an infinite frequency is valid") << freq << infinity << true << QString();
        QTest::newRow("a frequency that is not a number has no message") << freq << notANumber << false << QString();

        const QString precision = QStringLiteral("XmlDfPrecisionType: Illegal precision.");
        QTest::newRow("a bandwidth of 0 is valid") << bandwidth << 0.0 << true << QString();
        QTest::newRow("a bandwidth of negative zero is valid") << bandwidth << -0.0 << true << QString();
        QTest::newRow("a bandwidth below 0 is not") << bandwidth << below(0.0) << false << precision;
        QTest::newRow("a great bandwidth is valid") << bandwidth << huge << true << QString();
        QTest::newRow("a bandwidth that is not a number has no message")
            << bandwidth << notANumber << false << QString();

        const QString field = QStringLiteral("Illegal fieldstrength.");
        QTest::newRow("a field strength above the bound is valid")
            << fieldstrength << above(-99999.989) << true << QString();
        QTest::newRow("a field strength at the bound is not") << fieldstrength << -99999.989 << false << field;
        QTest::newRow("a field strength of the default is not") << fieldstrength << -99999.999 << false << field;
        QTest::newRow("a field strength of -100 is valid") << fieldstrength << -100.0 << true << QString();
        QTest::newRow("a field strength of 0 is valid") << fieldstrength << 0.0 << true << QString();
        QTest::newRow("a field strength that is not a number has no message")
            << fieldstrength << notANumber << false << QString();
    }
    void values()
    {
        QFETCH(Make, make);
        QFETCH(double, value);
        QFETCH(bool, valid);
        QFETCH(QString, problem);
        const auto quantity = make();
        quantity->setValue(value);
        QCOMPARE(quantity->element().isValid(), valid);
        const QString error = quantity->element().syntaxError();
        if (problem.isEmpty())
            QCOMPARE(error, QString());
        else
            QCOMPARE(error.split(QLatin1Char('\n')).mid(1, error.count(QLatin1Char('\n')) - 1), QStringList{problem});

        // With another version nothing is valid, and the version comes first.
        quantity->setVersion(QStringLiteral("1.1"));
        QVERIFY(!quantity->element().isValid());
        QStringList lines = quantity->element().syntaxError().split(QLatin1Char('\n'));
        QVERIFY(lines.takeFirst().startsWith(QStringLiteral("+++ in Xml")));
        QVERIFY(lines.takeLast().startsWith(QStringLiteral("--- in Xml")));
        QStringList expected = {QStringLiteral("Version \"1.1\" not supported")};
        if (!problem.isEmpty())
            expected += problem;
        QCOMPARE(lines, expected);
    }

    void units_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("xml");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QString>("error");
        QTest::newRow("a length in m") << length << QStringLiteral("<Q unit=\"m\">5</Q>") << true << QString();
        QTest::newRow("a length in km")
            << length << QStringLiteral("<Q unit=\"km\">5</Q>") << false
            << QStringLiteral("+++ in XmlLengthType Begin:\nIllegal unit (must be \"m\").\n--- in XmlLengthType End");
        QTest::newRow("a length in M, of version 2")
            << length << QStringLiteral("<Q version=\"2\" unit=\"M\">5</Q>") << false
            << QStringLiteral("+++ in XmlLengthType Begin:\n"
                              "Version \"2\" not supported\n"
                              "Illegal unit (must be \"m\").\n"
                              "--- in XmlLengthType End");
        QTest::newRow("a power in W") << power << QStringLiteral("<Q unit=\"W\">5</Q>") << true << QString();
        QTest::newRow("a power in w") << power << QStringLiteral("<Q unit=\"w\">5</Q>") << false
                                      << QStringLiteral(
                                             "+++ in XmlPowerType Begin:\nIllegal unit.\n--- in XmlPowerType End");
        QTest::newRow("a power with everything wrong")
            << power << QStringLiteral("<Q version=\"2\" unit=\"mW\">-61</Q>") << false
            << QStringLiteral("+++ in XmlPowerType Begin:\n"
                              "Version \"2\" not supported\n"
                              "Illegal power.\n"
                              "Illegal unit.\n"
                              "--- in XmlPowerType End");
        QTest::newRow("a frequency in Hz") << freq << QStringLiteral("<Q unit=\"Hz\">5</Q>") << true << QString();
        QTest::newRow("a frequency in kHz") << freq << QStringLiteral("<Q unit=\"kHz\">5</Q>") << true << QString();
        QTest::newRow("a frequency in MHz") << freq << QStringLiteral("<Q unit=\"MHz\">5</Q>") << true << QString();
        QTest::newRow("a frequency in GHz") << freq << QStringLiteral("<Q unit=\"GHz\">5</Q>") << true << QString();
        QTest::newRow("a frequency in hz, which keeps the illegal default")
            << freq << QStringLiteral("<Q unit=\"hz\">5</Q>") << false
            << QStringLiteral("+++ in XmlFreqType Begin:\nIllegal frequency.\nIllegal unit.\n--- in XmlFreqType End");
        QTest::newRow("a frequency with everything wrong")
            << freq << QStringLiteral("<Q version=\"2\" unit=\"THz\">5</Q>") << false
            << QStringLiteral("+++ in XmlFreqType Begin:\n"
                              "Version \"2\" not supported\n"
                              "Illegal frequency.\n"
                              "Illegal unit.\n"
                              "--- in XmlFreqType End");
        QTest::newRow("a bandwidth in kHz")
            << bandwidth << QStringLiteral("<Q unit=\"kHz\">5</Q>") << true << QString();
        QTest::newRow("a bandwidth in MHz") << bandwidth << QStringLiteral("<Q unit=\"MHz\">5</Q>") << false
                                            << QStringLiteral("+++ in XmlBandwidthType Begin:\n"
                                                              "XmlDfPrecisionType: Illegal unit.\n"
                                                              "--- in XmlBandwidthType End");
        QTest::newRow("a bandwidth with everything wrong")
            << bandwidth << QStringLiteral("<Q version=\"2\" unit=\"Hz\">-5</Q>") << false
            << QStringLiteral("+++ in XmlBandwidthType Begin:\n"
                              "Version \"2\" not supported\n"
                              "XmlDfPrecisionType: Illegal precision.\n"
                              "XmlDfPrecisionType: Illegal unit.\n"
                              "--- in XmlBandwidthType End");
        QTest::newRow("a field strength in dBm")
            << fieldstrength << QStringLiteral("<Q unit=\"dBm\">-80</Q>") << true << QString();
        QTest::newRow("a field strength in dB")
            << fieldstrength << QStringLiteral("<Q unit=\"dB\">-80</Q>") << false
            << QStringLiteral("+++ in XmlFieldstrengthType Begin:\nIllegal unit.\n--- in XmlFieldstrengthType End");
        QTest::newRow("a field strength with everything wrong")
            << fieldstrength << QStringLiteral("<Q version=\"2\" unit=\"W\">-100000</Q>") << false
            << QStringLiteral("+++ in XmlFieldstrengthType Begin:\n"
                              "Version \"2\" not supported\n"
                              "Illegal fieldstrength.\n"
                              "Illegal unit.\n"
                              "--- in XmlFieldstrengthType End");
        QTest::newRow("a level has no unit to be wrong")
            << dBm << QStringLiteral("<Q unit=\"W\">5</Q>") << true << QString();
        QTest::newRow("a ratio has no unit to be wrong")
            << decibel << QStringLiteral("<Q unit=\"W\">5</Q>") << true << QString();
        QTest::newRow("an angle has no unit to be wrong")
            << degrees << QStringLiteral("<Q unit=\"W\">5</Q>") << true << QString();
        QTest::newRow("a SINAD has no unit to be wrong")
            << sinad << QStringLiteral("<Q unit=\"W\">5</Q>") << true << QString();
    }
    void units()
    {
        QFETCH(Make, make);
        QFETCH(QString, xml);
        QFETCH(bool, valid);
        QFETCH(QString, error);
        const auto quantity = make();
        QCOMPARE(quantity->read(xml), QString());
        QCOMPARE(quantity->element().isValid(), valid);
        QCOMPARE(quantity->element().syntaxError(), error);
        QCOMPARE(quantity->element().syntaxError(), error);
    }

    void aLevelBecomesValid()
    {
        XmlDBMType level;
        QVERIFY(!level.isValid());
        QCOMPARE(level.syntaxError(),
                 QStringLiteral("+++ in XmlDBMType Begin:\nIllegal decibel.\n--- in XmlDBMType End"));
        level.setDBM(3.0);
        QVERIFY(level.isValid());
        QCOMPARE(level.syntaxError(), QString());
        level.reset();
        QCOMPARE(level.syntaxError(),
                 QStringLiteral("+++ in XmlDBMType Begin:\nIllegal decibel.\n--- in XmlDBMType End"));
    }

    void copies_data()
    {
        quantities();
    }
    void copies()
    {
        QFETCH(Make, make);
        const auto original = make();
        QCOMPARE(original->read(QStringLiteral("<Q version=\"2.0\" unit=\"GHz\">5</Q>")), QString());
        const double value = original->value();
        const QString unit = original->unit();
        const QString xml = original->write();
        const QString error = original->element().syntaxError();

        const auto copy = original->copy();
        const auto assigned = make();
        assigned->setValue(1.0);
        assigned->assign(*original);
        for (const auto& other : {copy, assigned}) {
            COMPARE_EXACTLY(other->value(), value);
            QCOMPARE(other->unit(), unit);
            QCOMPARE(other->version(), QStringLiteral("2.0"));
            QCOMPARE(other->write(), xml);
            QCOMPARE(other->element().syntaxError(), error);
        }
        assigned->assign(*assigned);
        QCOMPARE(assigned->write(), xml);

        // Each goes its own way.
        original->element().reset();
        QCOMPARE(copy->write(), xml);
        QCOMPARE(assigned->write(), xml);
        copy->setValue(6.0);
        QCOMPARE(assigned->write(), xml);
        QCOMPARE(original->write(), make()->write());
    }

private:
    struct Named {
        const char* name;
        Make make;
    };
    static QVector<Named> all()
    {
        return {{"level", dBm},   {"ratio", decibel},  {"angle", degrees},       {"length", length},
                {"power", power}, {"frequency", freq}, {"bandwidth", bandwidth}, {"field strength", fieldstrength},
                {"SINAD", sinad}};
    }
    /// A row for each kind of quantity.
    static void quantities()
    {
        QTest::addColumn<Make>("make");
        for (const auto& [name, make] : all())
            QTest::newRow(name) << make;
    }
};

QTEST_APPLESS_MAIN(QuantitiesTest)
#include "quantities_test.moc"
