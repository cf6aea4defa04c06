#include "support/elementtest.h"

#include <arvxml/valuelists.h>

#include <QtCore/QRegularExpression>

#include <memory>
#include <type_traits>

using namespace ArvXml;
using ElementTest::readError;
using ElementTest::written;

namespace {

// An item made of one number.
template <typename Item>
struct Numbers;
template <>
struct Numbers<XmlDBMType> {
    static double get(const XmlDBMType& item) { return item.dBm(); }
    static void set(XmlDBMType& item, double value) { item.setDBM(value); }
};
template <>
struct Numbers<XmlDecibelType> {
    static double get(const XmlDecibelType& item) { return item.decibel(); }
    static void set(XmlDecibelType& item, double value) { item.setDecibel(value); }
};
template <>
struct Numbers<XmlDegreesType> {
    static double get(const XmlDegreesType& item) { return item.degrees(); }
    static void set(XmlDegreesType& item, double value) { item.setDegrees(value); }
};
template <>
struct Numbers<XmlFreqType> {
    static double get(const XmlFreqType& item) { return item.frequency_MHz(); }
    static void set(XmlFreqType& item, double value) { item.setFrequency_MHz(value); }
};
template <>
struct Numbers<XmlFreqThrPairType> {
    static double get(const XmlFreqThrPairType& item) { return item.frequency()->frequency_MHz(); }
    static void set(XmlFreqThrPairType& item, double value)
    {
        XmlFreqType frequency;
        frequency.setFrequency_MHz(value);
        item.setFrequency(frequency);
        XmlFieldstrengthType threshold;
        threshold.setFieldstrength(-80.0);
        item.setFieldstrength(threshold);
    }
};

using Values = QVector<double>;

/// A list of any kind.
class List {
public:
    virtual ~List() = default;
    virtual IXmlElement& element() = 0;
    virtual Values values() const = 0;
    virtual QVector<const void*> addresses() const = 0;
    /// Hands over items of these values, which are deleted afterwards. A zero stands for no item.
    virtual void set(const Values& values) = 0;
    /// Hands the list's own list to it.
    virtual void setOwn() = 0;
    /// Hands the list some of its own items.
    virtual void setOwnItems(const QVector<int>& indices) = 0;
    virtual QString version() const = 0;
    virtual void setVersion(const QString& version) = 0;
    virtual void setItemVersion(int index, const QString& version) = 0;
    virtual std::shared_ptr<List> copy() const = 0;
    virtual void assign(const List& other) = 0;

    QString read(const QString& xml) { return readError(element(), xml); }
    QString write() { return written(element(), QStringLiteral("L")); }
};

template <typename T, typename Item, const QList<Item*>& (T::*Get)() const, void (T::*Set)(const QList<Item*>&)>
class ListOf : public List {
public:
    IXmlElement& element() override { return m_object; }
    Values values() const override
    {
        Values values;
        for (const Item* item : (m_object.*Get)())
            values.append(Numbers<Item>::get(*item));
        return values;
    }
    QVector<const void*> addresses() const override
    {
        QVector<const void*> addresses;
        for (const Item* item : (m_object.*Get)())
            addresses.append(item);
        return addresses;
    }
    void set(const Values& values) override
    {
        QList<Item*> items;
        for (const double value : values) {
            items.append(value != 0.0 ? new Item : nullptr);
            if (items.last())
                Numbers<Item>::set(*items.last(), value);
        }
        (m_object.*Set)(items);
        for (Item* item : std::as_const(items)) {
            if (item)
                Numbers<Item>::set(*item, 99.0); // still the caller's
            delete item;
        }
    }
    void setOwn() override { (m_object.*Set)((m_object.*Get)()); }
    void setOwnItems(const QVector<int>& indices) override
    {
        QList<Item*> items;
        for (const int index : indices)
            items.append((m_object.*Get)().at(index));
        (m_object.*Set)(items);
    }
    QString version() const override { return m_object.version(); }
    void setVersion(const QString& version) override { m_object.setVersion(version); }
    void setItemVersion(int index, const QString& version) override
    {
        (m_object.*Get)().at(index)->setVersion(version);
    }
    std::shared_ptr<List> copy() const override { return std::make_shared<ListOf>(*this); }
    void assign(const List& other) override { m_object = static_cast<const ListOf&>(other).m_object; }

private:
    T m_object;
};

using Make = std::shared_ptr<List> (*)();

template <typename T>
std::shared_ptr<List> make()
{
    return std::make_shared<T>();
}

const Make dBmList = make<ListOf<XmlDBMListType, XmlDBMType, &XmlDBMListType::dBmList, &XmlDBMListType::setDBMList>>;
const Make decibelList = make<
    ListOf<XmlDecibelListType, XmlDecibelType, &XmlDecibelListType::decibelList, &XmlDecibelListType::setDecibelList>>;
const Make degreesList = make<
    ListOf<XmlDegreesListType, XmlDegreesType, &XmlDegreesListType::degreeList, &XmlDegreesListType::setDegreesList>>;
const Make freqList =
    make<ListOf<XmlFreqListType, XmlFreqType, &XmlFreqListType::freqList, &XmlFreqListType::setFreqList>>;
const Make freqThrList = make<ListOf<XmlFreqThrListType, XmlFreqThrPairType, &XmlFreqThrListType::freqThrPairs,
                                     &XmlFreqThrListType::setFreqThrPairs>>;

const QString frequencyXml = QStringLiteral("<Frequency version=\"1.0\" unit=\"MHz\">5.000000</Frequency>");
const QString thresholdXml =
    QStringLiteral("<RxThreshold version=\"1.0\" unit=\"dBm\">-80.000000000000000</RxThreshold>");

} // namespace

Q_DECLARE_METATYPE(Make)

class ValuelistsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The lists

    void accessors()
    {
        static_assert(std::is_same_v<decltype(std::declval<const XmlDBMListType&>().version()), QString>);
        const XmlFreqThrPairType pair;
        static_assert(std::is_same_v<decltype(pair.frequency()), const XmlFreqType*>);
        static_assert(std::is_same_v<decltype(pair.fieldstrength()), const XmlFieldstrengthType*>);
        static_assert(std::is_same_v<decltype(pair.version()), QString>);
        QVERIFY(pair.frequency());
        QVERIFY(pair.fieldstrength());
    }

    void anEmptyList_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("tooFew");
        const QString pairs = QStringLiteral("Too few pairs (min. 1)");
        QTest::newRow("levels") << dBmList << QStringLiteral("XmlDBMListType") << pairs;
        QTest::newRow("ratios") << decibelList << QStringLiteral("XmlDecibelListType") << pairs;
        QTest::newRow("angles") << degreesList << QStringLiteral("XmlDegreesListType") << pairs;
        QTest::newRow("frequencies") << freqList << QStringLiteral("XmlFreqListType")
                                     << QStringLiteral("Too few frequencies (min. 1)");
        QTest::newRow("pairs") << freqThrList << QStringLiteral("XmlFreqThrListType") << pairs;
    }
    void anEmptyList()
    {
        QFETCH(Make, make);
        QFETCH(QString, className);
        QFETCH(QString, tooFew);
        const QString problems = QStringLiteral("+++ in %1 Begin:\n%2\n--- in %1 End").arg(className, tooFew);

        const auto list = make();
        const auto check = [&] {
            QCOMPARE(list->values(), Values());
            QCOMPARE(list->version(), QStringLiteral("1.0"));
            QCOMPARE(list->write(), QStringLiteral("<L version=\"1.0\"/>"));
            QVERIFY(!list->element().isValid());
            QCOMPARE(list->element().syntaxError(), problems);
        };
        check();

        list->setVersion(QStringLiteral("2.0"));
        QCOMPARE(list->element().syntaxError(),
                 QStringLiteral("+++ in %1 Begin:\nVersion \"2.0\" not supported\n%2\n--- in %1 End")
                     .arg(className, tooFew));

        // A reset makes a used list new again.
        list->set({5.0, 6.0});
        list->element().reset();
        check();

        // An empty list is refused at its end tag.
        const auto refused = QStringLiteral("in %1 (line %2): Unexpected token \"EndElement\".").arg(className);
        QCOMPARE(list->read(QStringLiteral("<L/>")), refused.arg(QStringLiteral("1, column 4")));
        QCOMPARE(list->read(QStringLiteral("<L version=\"3\">\n  \n</L>")), refused.arg(QStringLiteral("3, column 4")));
        QCOMPARE(list->version(), QStringLiteral("3"));
        list->element().reset();
        check();
    }

    void reading_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("first");  // with the value 5
        QTest::addColumn<QString>("second"); // with the value 7
        QTest::newRow("levels") << dBmList << QStringLiteral("XmlDBMListType") << QStringLiteral("dBm")
                                << QStringLiteral("<dBm version=\"1.0\" unit=\"dBm\">5.000000000</dBm>")
                                << QStringLiteral("<dBm version=\"1.0\" unit=\"dBm\">7.000000000</dBm>");
        QTest::newRow("ratios") << decibelList << QStringLiteral("XmlDecibelListType") << QStringLiteral("Decibel")
                                << QStringLiteral("<Decibel version=\"1.0\" unit=\"dB\">5.000000</Decibel>")
                                << QStringLiteral("<Decibel version=\"1.0\" unit=\"dB\">7.000000</Decibel>");
        const QString angle = QString(QLatin1String("<Degrees version=\"1.0\" unit=\"") + QChar(0x00B0)
                                      + QLatin1String("\">%1</Degrees>"));
        QTest::newRow("angles") << degreesList << QStringLiteral("XmlDegreesListType") << QStringLiteral("Degrees")
                                << angle.arg(QStringLiteral("5.0")) << angle.arg(QStringLiteral("7.0"));
        QTest::newRow("frequencies") << freqList << QStringLiteral("XmlFreqListType") << QStringLiteral("Frequency")
                                     << frequencyXml
                                     << QStringLiteral("<Frequency version=\"1.0\" unit=\"MHz\">7.000000</Frequency>");
        const QString pair = QStringLiteral("<Pair version=\"1.0\">%1%2</Pair>");
        QTest::newRow("pairs") << freqThrList << QStringLiteral("XmlFreqThrListType") << QStringLiteral("Pair")
                               << pair.arg(frequencyXml, thresholdXml)
                               << pair.arg(
                                      QStringLiteral("<Frequency version=\"1.0\" unit=\"MHz\">7.000000</Frequency>"),
                                      thresholdXml);
    }
    void reading()
    {
        QFETCH(Make, make);
        QFETCH(QString, className);
        QFETCH(QString, tag);
        QFETCH(QString, first);
        QFETCH(QString, second);

        const auto list = make();
        QCOMPARE(list->read(QStringLiteral("<L>%1</L>").arg(first)), QString());
        QCOMPARE(list->values(), Values{5.0});
        QVERIFY(list->element().isValid());
        QCOMPARE(list->element().syntaxError(), QString());
        QCOMPARE(list->write(), QStringLiteral("<L version=\"1.0\">%1</L>").arg(first));

        // Another reading replaces the items; their order is kept.
        const QString three = QStringLiteral("<L version=\"1.0\">%1%2%1</L>").arg(second, first);
        QCOMPARE(list->read(three), QString());
        QCOMPARE(list->values(), (Values{7.0, 5.0, 7.0}));
        QCOMPARE(list->write(), three);
        QCOMPARE(written(list->element(), QStringLiteral("Other")),
                 QStringLiteral("<Other version=\"1.0\">%1%2%1</Other>").arg(second, first));

        // An item of the list's own tag is an item all the same.
        const QString ownTag = QStringLiteral("<%1>\n%2\n</%1>").arg(tag, first);
        QCOMPARE(list->read(ownTag), QString());
        QCOMPARE(list->values(), Values{5.0});

        // Anything else is refused, whatever came before.
        const QString refused =
            QStringLiteral("in %1 (line 2, column 8): Unexpected element \"Other\".").arg(className);
        QCOMPARE(list->read(QStringLiteral("<L>\n<Other/>%1</L>").arg(first)), refused);
        QCOMPARE(list->values(), Values());
        QCOMPARE(list->read(QStringLiteral("<L>%1\n<Other/>%1</L>").arg(second)), refused);
        QCOMPARE(list->values(), Values{7.0});
        const QString otherCase = tag == QStringLiteral("dBm") ? QStringLiteral("DBM") : tag.toLower();
        QVERIFY(list->read(QStringLiteral("<L><%1></%1></L>").arg(otherCase))
                    .endsWith(QStringLiteral("): Unexpected element \"%1\".").arg(otherCase)));

        // What a failed reading left can be written, copied, checked, reset and read again.
        QCOMPARE(list->read(QStringLiteral("<L version=\"2\">%1<Other/></L>").arg(second)).isEmpty(), false);
        const QString left = QStringLiteral("<L version=\"2\">%1</L>").arg(second);
        QCOMPARE(list->write(), left);
        QCOMPARE(list->copy()->write(), left);
        QVERIFY(!list->element().isValid());
        QCOMPARE(list->element().syntaxError(),
                 QStringLiteral("+++ in %1 Begin:\nVersion \"2\" not supported\n--- in %1 End").arg(className));
        list->element().reset();
        QCOMPARE(list->write(), QStringLiteral("<L version=\"1.0\"/>"));
        QCOMPARE(list->read(three), QString());
        QCOMPARE(list->write(), three);

        // Another end tag than the list's own is refused, though there are items.
        QXmlStreamReader reader(QStringLiteral("<L>%1\n</L>").arg(first));
        reader.readNextStartElement();
        list->element().processXml(reader, QStringLiteral("l"));
        QCOMPARE(reader.errorString(),
                 QStringLiteral("in %1 (line 2, column 4): Unexpected token \"EndElement\".").arg(className));
        QCOMPARE(list->values(), Values{5.0});
    }

    void readingAVersion_data() { reading_data(); }
    void readingAVersion()
    {
        QFETCH(Make, make);
        QFETCH(QString, className);
        QFETCH(QString, first);
        const auto list = make();
        list->setVersion(QStringLiteral("9"));
        QCOMPARE(list->read(QStringLiteral("<L>%1</L>").arg(first)), QString());
        QCOMPARE(list->version(), QStringLiteral("1.0"));
        QCOMPARE(list->read(QStringLiteral("<L version=\"2.0\">%1</L>").arg(first)), QString());
        QCOMPARE(list->version(), QStringLiteral("2.0"));
        QCOMPARE(list->values(), Values{5.0}); // no error while reading
        QVERIFY(!list->element().isValid());
        QCOMPARE(list->element().syntaxError(),
                 QStringLiteral("+++ in %1 Begin:\nVersion \"2.0\" not supported\n--- in %1 End").arg(className));
        QCOMPARE(list->write(), QStringLiteral("<L version=\"2.0\">%1</L>").arg(first));
        QCOMPARE(list->read(QStringLiteral("<L version=\"\">%1</L>").arg(first)), QString());
        QCOMPARE(list->version(), QStringLiteral("1.0"));
    }

    void wrongPosition_data() { reading_data(); }
    void wrongPosition()
    {
        QFETCH(Make, make);
        QFETCH(QString, className);
        QFETCH(QString, first);
        const QString error = QStringLiteral("in %1 (line %2): Parse error (wrong position).").arg(className);
        const auto list = make();
        const auto use = [&] {
            list->set({5.0});
            list->setVersion(QStringLiteral("9"));
        };

        use();
        QXmlStreamReader fresh(QStringLiteral("<L>%1</L>").arg(first));
        list->element().processXml(fresh, QStringLiteral("L"));
        QVERIFY(fresh.errorString().endsWith(QStringLiteral("): Parse error (wrong position).")));
        QCOMPARE(list->values(), Values()); // emptied before anything else
        QCOMPARE(list->version(), QStringLiteral("1.0"));

        use();
        QXmlStreamReader onText(QStringLiteral("<L version=\"2.0\">\n %1</L>").arg(first));
        onText.readNextStartElement();
        QCOMPARE(onText.readNext(), QXmlStreamReader::Characters);
        list->element().processXml(onText, QStringLiteral("L"));
        QCOMPARE(onText.errorString(), error.arg(QStringLiteral("2, column 2")));
        QCOMPARE(list->values(), Values());
        QCOMPARE(list->version(), QStringLiteral("1.0"));

        use();
        QXmlStreamReader atEnd(QStringLiteral("<L>\n</L>"));
        while (!atEnd.atEnd())
            atEnd.readNext();
        list->element().processXml(atEnd, QStringLiteral("L"));
        QCOMPARE(atEnd.errorString(), error.arg(QStringLiteral("2, column 4")));
        QCOMPARE(list->values(), Values());
    }

    void anItemThatFails_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("items");
        QTest::addColumn<QString>("error");
        QTest::addColumn<Values>("values");
        QTest::newRow("a level") << dBmList << QStringLiteral("<dBm>5</dBm>\n<dBm>x</dBm><dBm>7</dBm>")
                                 << QStringLiteral("in XmlDBMType (line 2, column 7): Illegal value (must be numeric).")
                                 << Values{5.0, -110.0};
        QTest::newRow("a ratio") << decibelList
                                 << QStringLiteral("<Decibel>5</Decibel>\n<Decibel>x</Decibel><Decibel>7</Decibel>")
                                 << QStringLiteral(
                                        "in XmlDecibelType (line 2, column 11): Illegal value (must be numeric).")
                                 << Values{5.0, -0.0};
        QTest::newRow("an angle") << degreesList
                                  << QStringLiteral("<Degrees>5</Degrees>\n<Degrees>x</Degrees><Degrees>7</Degrees>")
                                  << QStringLiteral(
                                         "in XmlDegreesType (line 2, column 11): Illegal value (must be numeric).")
                                  << Values{5.0, -0.0};
        QTest::newRow("a frequency without a unit")
            << freqList
            << QStringLiteral("<Frequency unit=\"MHz\">5</Frequency>\n<Frequency>6</Frequency>"
                              "<Frequency unit=\"MHz\">7</Frequency>")
            << QStringLiteral("in XmlFreqType (line 2, column 11): Missing attribute: \"unit\".") << Values{5.0, -9.9};
        QTest::newRow("a pair that is empty")
            << freqThrList
            << QStringLiteral("<Pair>%1%2</Pair>\n<Pair></Pair><Pair>%1%2</Pair>").arg(frequencyXml, thresholdXml)
            << QStringLiteral("in XmlFreqThrPairType (line 2, column 13): Unexpected token \"EndElement\".")
            << Values{5.0, -9.9};
        QTest::newRow("a pair with a threshold without a unit")
            << freqThrList << QStringLiteral("<Pair>%1<RxThreshold>-80</RxThreshold></Pair>").arg(frequencyXml)
            << QStringLiteral("in XmlFieldstrengthType (line 1, column 78): Missing attribute: \"unit\".")
            << Values{5.0};
    }
    void anItemThatFails()
    {
        QFETCH(Make, make);
        QFETCH(QString, items);
        QFETCH(QString, error);
        QFETCH(Values, values);
        const auto list = make();
        list->set({1.0, 2.0, 3.0});
        QCOMPARE(list->read(QStringLiteral("<L>") + items + QStringLiteral("</L>")), error);
        QCOMPARE(list->values(), values);                         // the failed item is there, those after it are not
        QCOMPARE(list->element().isValid(), make == degreesList); // where the default is valid
    }

    void items_data() { reading_data(); }
    void items()
    {
        QFETCH(Make, make);
        QFETCH(QString, first);
        QFETCH(QString, second);
        const QString three = QStringLiteral("<L version=\"1.0\">%1%2%1</L>").arg(first, second);

        const auto list = make();
        list->set({5.0, 7.0, 5.0}); // the caller's items are gone afterwards
        QCOMPARE(list->values(), (Values{5.0, 7.0, 5.0}));
        QCOMPARE(list->write(), three);
        QVERIFY(list->element().isValid());
        QVERIFY(list->addresses().at(0) != list->addresses().at(2));

        list->setOwn();
        QCOMPARE(list->write(), three);
        list->setOwnItems({1, 1, 0});
        QCOMPARE(list->values(), (Values{7.0, 7.0, 5.0}));
        QVERIFY(list->addresses().at(0) != list->addresses().at(1));
        list->set({0.0, 5.0, 0.0}); // null pointers are left out
        QCOMPARE(list->values(), Values{5.0});
        list->set({7.0});
        QCOMPARE(list->values(), Values{7.0}); // replaced, not added
        list->set({});
        QCOMPARE(list->values(), Values());
        QVERIFY(!list->element().isValid());

        // Items are handed over with all they hold.
        list->set({5.0, 7.0});
        list->setItemVersion(1, QStringLiteral("3"));
        list->setOwnItems({1});
        QVERIFY(!list->element().isValid());
        QVERIFY(list->element().syntaxError().contains(QStringLiteral("Version \"3\" not supported")));
    }

    void copies_data() { reading_data(); }
    void copies()
    {
        QFETCH(Make, make);
        QFETCH(QString, first);
        QFETCH(QString, second);
        const auto list = make();
        list->set({5.0, 7.0});
        list->setVersion(QStringLiteral("2.0"));
        const QString xml = QStringLiteral("<L version=\"2.0\">%1%2</L>").arg(first, second);
        const QString error = list->element().syntaxError();

        const auto copy = list->copy();
        const auto assigned = make();
        assigned->set({1.0, 2.0, 3.0});
        assigned->assign(*list);
        const auto assignedToNew = make();
        assignedToNew->assign(*list);
        for (const auto& other : {copy, assigned, assignedToNew}) {
            QCOMPARE(other->write(), xml);
            QCOMPARE(other->version(), QStringLiteral("2.0"));
            QCOMPARE(other->element().syntaxError(), error);
            QVERIFY(other->addresses().at(0) != list->addresses().at(0));
        }
        assigned->assign(*assigned);
        QCOMPARE(assigned->write(), xml);

        // Each goes its own way.
        list->setItemVersion(0, QStringLiteral("8"));
        copy->setItemVersion(1, QStringLiteral("8"));
        QCOMPARE(assigned->write(), xml);
        list->element().reset();
        QCOMPARE(assigned->write(), xml);
        assigned->assign(*list);
        QCOMPARE(assigned->write(), QStringLiteral("<L version=\"1.0\"/>"));
    }

    void problemsOfItems_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("items");
        QTest::addColumn<QString>("error");
        QTest::newRow("levels") << dBmList << QStringLiteral("<dBm>-5</dBm><dBm>5</dBm><dBm version=\"3\">7</dBm>")
                                << QStringLiteral("+++ in XmlDBMListType Begin:\n"
                                                  "Version \"2\" not supported\n"
                                                  "+++ in XmlDBMType Begin:\n"
                                                  "Illegal decibel.\n"
                                                  "--- in XmlDBMType End\n"
                                                  "+++ in XmlDBMType Begin:\n"
                                                  "Version \"3\" not supported\n"
                                                  "--- in XmlDBMType End\n"
                                                  "--- in XmlDBMListType End");
        QTest::newRow("ratios") << decibelList
                                << QStringLiteral(
                                       "<Decibel>5</Decibel><Decibel version=\"3\">7</Decibel><Decibel>0</Decibel>")
                                << QStringLiteral("+++ in XmlDecibelListType Begin:\n"
                                                  "Version \"2\" not supported\n"
                                                  "+++ in XmlDecibelType Begin:\n"
                                                  "Version \"3\" not supported\n"
                                                  "--- in XmlDecibelType End\n"
                                                  "+++ in XmlDecibelType Begin:\n"
                                                  "Illegal decibel.\n"
                                                  "--- in XmlDecibelType End\n"
                                                  "--- in XmlDecibelListType End");
        QTest::newRow("angles") << degreesList << QStringLiteral("<Degrees>90</Degrees><Degrees>90.1</Degrees>")
                                << QStringLiteral("+++ in XmlDegreesListType Begin:\n"
                                                  "Version \"2\" not supported\n"
                                                  "+++ in XmlDegreesType Begin:\n"
                                                  "Illegal decibel.\n"
                                                  "--- in XmlDegreesType End\n"
                                                  "--- in XmlDegreesListType End");
        QTest::newRow("frequencies") << freqList
                                     << QStringLiteral(
                                            "<Frequency unit=\"MHz\">0</Frequency><Frequency unit=\"W\">5</Frequency>")
                                     << QStringLiteral("+++ in XmlFreqListType Begin:\n"
                                                       "Version \"2\" not supported\n"
                                                       "+++ in XmlFreqType Begin:\n"
                                                       "Illegal frequency.\n"
                                                       "--- in XmlFreqType End\n"
                                                       "+++ in XmlFreqType Begin:\n"
                                                       "Illegal frequency.\n"
                                                       "Illegal unit.\n"
                                                       "--- in XmlFreqType End\n"
                                                       "--- in XmlFreqListType End");
        QTest::newRow("pairs") << freqThrList
                               << QStringLiteral("<Pair version=\"3\"><Frequency unit=\"MHz\">0</Frequency>"
                                                 "<RxThreshold unit=\"W\">-80</RxThreshold></Pair>"
                                                 "<Pair><Frequency unit=\"MHz\">1</Frequency>"
                                                 "<RxThreshold unit=\"dBm\">-100000</RxThreshold></Pair>")
                               << QStringLiteral("+++ in XmlFreqThrListType Begin:\n"
                                                 "Version \"2\" not supported\n"
                                                 "+++ in XmlFreqThrPairType Begin:\n"
                                                 "Version \"3\" not supported\n"
                                                 "+++ in XmlFreqType Begin:\n"
                                                 "Illegal frequency.\n"
                                                 "--- in XmlFreqType End\n"
                                                 "+++ in XmlFieldstrengthType Begin:\n"
                                                 "Illegal unit.\n"
                                                 "--- in XmlFieldstrengthType End\n"
                                                 "--- in XmlFreqThrPairType End\n"
                                                 "+++ in XmlFreqThrPairType Begin:\n"
                                                 "+++ in XmlFieldstrengthType Begin:\n"
                                                 "Illegal fieldstrength.\n"
                                                 "--- in XmlFieldstrengthType End\n"
                                                 "--- in XmlFreqThrPairType End\n"
                                                 "--- in XmlFreqThrListType End");
    }
    void problemsOfItems()
    {
        QFETCH(Make, make);
        QFETCH(QString, items);
        QFETCH(QString, error);
        const auto list = make();
        QCOMPARE(list->read(QStringLiteral("<L version=\"2\">%1</L>").arg(items)), QString());
        QVERIFY(!list->element().isValid());
        QCOMPARE(list->element().syntaxError(), error);
        QCOMPARE(list->element().syntaxError(), error);

        // The items alone make the list invalid, too.
        list->setVersion(QStringLiteral("1.0"));
        QVERIFY(!list->element().isValid());
        QCOMPARE(list->element().syntaxError(), error.remove(QStringLiteral("Version \"2\" not supported\n")));
    }

    void oneInvalidItem_data() { reading_data(); }
    void oneInvalidItem()
    {
        QFETCH(Make, make);
        for (int index = 0; index < 3; ++index) {
            const auto list = make();
            list->set({5.0, 6.0, 7.0});
            QVERIFY(list->element().isValid());
            list->setItemVersion(index, QStringLiteral("2.0"));
            QVERIFY(!list->element().isValid()); // wherever it stands
        }
    }

    // The pair

    void aNewPair()
    {
        XmlFreqThrPairType pair;
        const auto check = [&pair] {
            QCOMPARE(pair.frequency()->frequency_MHz(), -9.9);
            QCOMPARE(pair.frequency()->unit(), QStringLiteral("MHz"));
            QCOMPARE(pair.fieldstrength()->fieldstrength(), -99999.999);
            QCOMPARE(pair.fieldstrength()->unit(), QStringLiteral("dBm"));
            QCOMPARE(pair.version(), QStringLiteral("1.0"));
            QVERIFY(!pair.isValid());
            QCOMPARE(
                written(pair, QStringLiteral("P")),
                QStringLiteral("<P version=\"1.0\"><Frequency version=\"1.0\" unit=\"MHz\">-9.900000</Frequency>"
                               "<RxThreshold version=\"1.0\" unit=\"dBm\">-99999.998999999996158</RxThreshold></P>"));
            QCOMPARE(pair.syntaxError(),
                     QStringLiteral("+++ in XmlFreqThrPairType Begin:\n"
                                    "+++ in XmlFreqType Begin:\n"
                                    "Illegal frequency.\n"
                                    "--- in XmlFreqType End\n"
                                    "+++ in XmlFieldstrengthType Begin:\n"
                                    "Illegal fieldstrength.\n"
                                    "--- in XmlFieldstrengthType End\n"
                                    "--- in XmlFreqThrPairType End"));
        };
        check();
        QCOMPARE(readError(pair,
                           QStringLiteral("<P version=\"2\"><Frequency version=\"3\" unit=\"GHz\">1</Frequency>"
                                          "<RxThreshold version=\"4\" unit=\"W\">5</RxThreshold></P>")),
                 QString());
        const XmlFreqType* const frequency = pair.frequency();
        const XmlFieldstrengthType* const threshold = pair.fieldstrength();
        pair.reset();
        check();
        QCOMPARE(pair.frequency(), frequency); // reset in place
        QCOMPARE(pair.fieldstrength(), threshold);
    }

    void settingAPair()
    {
        XmlFreqThrPairType pair;
        const XmlFreqType* const held = pair.frequency();
        const XmlFieldstrengthType* const heldThreshold = pair.fieldstrength();
        XmlFreqType frequency;
        frequency.setFrequency_MHz(5.0);
        frequency.setUnit(QStringLiteral("kHz"));
        XmlFieldstrengthType threshold;
        threshold.setFieldstrength(-80.0);
        pair.setFrequency(frequency);
        pair.setFieldstrength(threshold);
        frequency.setFrequency_MHz(1.0);
        threshold.setFieldstrength(1.0);
        QCOMPARE(pair.frequency(), held); // assigned into the objects held
        QCOMPARE(pair.fieldstrength(), heldThreshold);
        QCOMPARE(pair.frequency()->frequency_MHz(), 5.0);
        QCOMPARE(pair.frequency()->unit(), QStringLiteral("kHz"));
        QCOMPARE(pair.fieldstrength()->fieldstrength(), -80.0);
        QVERIFY(pair.isValid());
        QCOMPARE(pair.syntaxError(), QString());

        pair.setFrequency(*pair.frequency());
        pair.setFieldstrength(*pair.fieldstrength());
        const QString xml =
            QStringLiteral("<P version=\"1.0\"><Frequency version=\"1.0\" unit=\"kHz\">5000.000000</Frequency>%1</P>")
                .arg(thresholdXml);
        QCOMPARE(written(pair, QStringLiteral("P")), xml);

        // A child is taken over with all it holds.
        QCOMPARE(readError(threshold, QStringLiteral("<T version=\"3.0\" unit=\"W\">-70</T>")), QString());
        XmlFreqThrPairType full;
        full.setFieldstrength(threshold);
        QCOMPARE(full.fieldstrength()->fieldstrength(), -70.0);
        QCOMPARE(full.fieldstrength()->unit(), QStringLiteral("W"));
        QCOMPARE(full.fieldstrength()->version(), QStringLiteral("3.0"));
        frequency.setVersion(QStringLiteral("4.0"));
        full.setFrequency(frequency);
        QCOMPARE(full.frequency()->version(), QStringLiteral("4.0"));

        XmlFreqThrPairType copy(pair);
        XmlFreqThrPairType assigned;
        const XmlFreqType* const assignedTo = assigned.frequency();
        assigned = pair;
        QCOMPARE(assigned.frequency(), assignedTo);
        QVERIFY(copy.frequency() != pair.frequency());
        const XmlFreqThrPairType& self = assigned;
        assigned = self;
        pair.reset();
        QCOMPARE(written(copy, QStringLiteral("P")), xml);
        QCOMPARE(written(assigned, QStringLiteral("P")), xml);

        copy.setVersion(QStringLiteral("2.0"));
        QCOMPARE(copy.version(), QStringLiteral("2.0"));
        QVERIFY(!copy.isValid());
        QCOMPARE(copy.syntaxError(),
                 QStringLiteral("+++ in XmlFreqThrPairType Begin:\n"
                                "Version \"2.0\" not supported\n"
                                "--- in XmlFreqThrPairType End"));
        QCOMPARE(assigned.version(), QStringLiteral("1.0"));
        assigned = copy;
        QCOMPARE(assigned.version(), QStringLiteral("2.0"));
    }

    void oneInvalidChildOfAPair()
    {
        XmlFreqThrPairType pair;
        XmlFreqType frequency;
        frequency.setFrequency_MHz(5.0);
        pair.setFrequency(frequency);
        QVERIFY(!pair.isValid());
        QCOMPARE(pair.syntaxError(),
                 QStringLiteral("+++ in XmlFreqThrPairType Begin:\n"
                                "+++ in XmlFieldstrengthType Begin:\n"
                                "Illegal fieldstrength.\n"
                                "--- in XmlFieldstrengthType End\n"
                                "--- in XmlFreqThrPairType End"));
        XmlFieldstrengthType threshold;
        threshold.setFieldstrength(-80.0);
        pair.setFieldstrength(threshold);
        QVERIFY(pair.isValid());
        frequency.setFrequency_MHz(0.0);
        pair.setFrequency(frequency);
        QVERIFY(!pair.isValid());
    }

    void theOrderInAPair_data()
    {
        QTest::addColumn<QString>("children"); // F the frequency, T the threshold, X something else
        QTest::addColumn<QString>("error");
        const QString frequency = QStringLiteral("Unexpected element \"Frequency\"");
        const QString threshold = QStringLiteral("Unexpected element \"RxThreshold\"");
        const QString other = QStringLiteral("Unexpected element \"Other\"");
        const QString end = QStringLiteral("Unexpected token \"EndElement\"");
        QTest::newRow("both in order") << QStringLiteral("FT") << QString();
        QTest::newRow("nothing") << QString() << end;
        QTest::newRow("the frequency alone") << QStringLiteral("F") << end;
        QTest::newRow("the threshold alone") << QStringLiteral("T") << end;
        QTest::newRow("the frequency after the threshold") << QStringLiteral("TF") << frequency;
        QTest::newRow("a second frequency") << QStringLiteral("FF") << frequency;
        QTest::newRow("a second threshold") << QStringLiteral("TT") << threshold;
        QTest::newRow("a frequency after both") << QStringLiteral("FTF") << frequency;
        QTest::newRow("a threshold after both") << QStringLiteral("FTT") << threshold;
        QTest::newRow("another element alone") << QStringLiteral("X") << other;
        QTest::newRow("another element after the frequency") << QStringLiteral("FX") << other;
        QTest::newRow("another element after the threshold") << QStringLiteral("TX") << other;
        QTest::newRow("another element after both") << QStringLiteral("FTX") << other;
    }
    void theOrderInAPair()
    {
        QFETCH(QString, children);
        QFETCH(QString, error);
        QString xml = QStringLiteral("<P>");
        for (const QChar child : std::as_const(children)) {
            xml += child == QLatin1Char('F') ? frequencyXml
                : child == QLatin1Char('T')  ? thresholdXml
                                             : QStringLiteral("<Other></Other>");
        }
        xml += QStringLiteral("</P>");
        XmlFreqThrPairType pair;
        // Whether a child may come is asked anew in each reading.
        for (int i = 0; i < 2; ++i) {
            const QString actual = readError(pair, xml);
            if (error.isEmpty()) {
                QCOMPARE(actual, QString());
            } else {
                QVERIFY2(QRegularExpression(
                             QRegularExpression::anchoredPattern(
                                 QStringLiteral("in XmlFreqThrPairType \\(line 1, column \\d+\\): %1\\.").arg(error)))
                             .match(actual)
                             .hasMatch(),
                         qPrintable(actual));
            }
            // The children accepted were read.
            const bool hasFrequency = children.startsWith(QLatin1Char('F'));
            const bool hasThreshold = children.contains(QLatin1Char('T'));
            QCOMPARE(pair.frequency()->frequency_MHz(), hasFrequency ? 5.0 : -9.9);
            QCOMPARE(pair.fieldstrength()->fieldstrength(), hasThreshold ? -80.0 : -99999.999);
        }
    }

    void readingAPair()
    {
        XmlFreqThrPairType pair;
        const XmlFreqType* const frequency = pair.frequency();
        QCOMPARE(readError(pair,
                           QStringLiteral("<P version=\"2.0\">\n"
                                          " <Frequency unit=\"kHz\">5000</Frequency> text <!-- -->\n"
                                          " <RxThreshold unit=\"W\" version=\"3.0\">-80</RxThreshold>\n"
                                          "</P>")),
                 QString());
        QCOMPARE(pair.version(), QStringLiteral("2.0")); // read, and reported when judged
        QCOMPARE(pair.frequency(), frequency);           // the objects held have read
        QCOMPARE(pair.frequency()->frequency_MHz(), 5.0);
        QCOMPARE(pair.frequency()->unit(), QStringLiteral("kHz"));
        QCOMPARE(pair.fieldstrength()->unit(), QStringLiteral("W"));
        QCOMPARE(pair.fieldstrength()->version(), QStringLiteral("3.0"));
        QVERIFY(!pair.isValid());
        QCOMPARE(pair.syntaxError(),
                 QStringLiteral("+++ in XmlFreqThrPairType Begin:\n"
                                "Version \"2.0\" not supported\n"
                                "+++ in XmlFieldstrengthType Begin:\n"
                                "Version \"3.0\" not supported\n"
                                "Illegal unit.\n"
                                "--- in XmlFieldstrengthType End\n"
                                "--- in XmlFreqThrPairType End"));

        // What is not read again is kept, but for the version.
        QCOMPARE(readError(pair, QStringLiteral("<P>\n</P>")),
                 QStringLiteral("in XmlFreqThrPairType (line 2, column 4): Unexpected token \"EndElement\"."));
        QCOMPARE(pair.version(), QStringLiteral("1.0"));
        QCOMPARE(pair.frequency()->frequency_MHz(), 5.0);
        QCOMPARE(pair.fieldstrength()->fieldstrength(), -80.0);
        QCOMPARE(readError(pair, QStringLiteral("<P><Frequency unit=\"MHz\"/><RxThreshold unit=\"dBm\"/></P>")),
                 QString());
        QCOMPARE(pair.frequency()->frequency_MHz(), 5.0);
        QVERIFY(pair.isValid());
        QCOMPARE(written(pair, QStringLiteral("P")),
                 QStringLiteral("<P version=\"1.0\">%1%2</P>").arg(frequencyXml, thresholdXml));
        QCOMPARE(readError(pair, QStringLiteral("<P version=\"\">%1%2</P>").arg(frequencyXml, thresholdXml)),
                 QString());
        QCOMPARE(pair.version(), QStringLiteral("1.0"));
    }

    void errorsInAPair_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("error");
        QTest::newRow("the threshold before the frequency")
            << QStringLiteral(
                   "<P>\n  <RxThreshold unit=\"dBm\">-80</RxThreshold>\n  <Frequency unit=\"MHz\">5</Frequency>\n</P>")
            << QStringLiteral("in XmlFreqThrPairType (line 3, column 24): Unexpected element \"Frequency\".");
        QTest::newRow("a frequency that is no number")
            << QStringLiteral("<P>\n  <Frequency unit=\"MHz\">five</Frequency>\n</P>")
            << QStringLiteral("in XmlFreqType (line 2, column 29): Illegal value (must be numeric).");
        QTest::newRow("a frequency without a unit")
            << QStringLiteral("<P>\n  <Frequency>5</Frequency>\n</P>")
            << QStringLiteral("in XmlFreqType (line 2, column 13): Missing attribute: \"unit\".");
        QTest::newRow("a threshold without a unit")
            << QStringLiteral("<P>\n  <RxThreshold>-80</RxThreshold>\n</P>")
            << QStringLiteral("in XmlFieldstrengthType (line 2, column 15): Missing attribute: \"unit\".");
        QTest::newRow("letters are compared exactly")
            << QStringLiteral("<P>\n  <frequency unit=\"MHz\">5</frequency>\n</P>")
            << QStringLiteral("in XmlFreqThrPairType (line 2, column 24): Unexpected element \"frequency\".");
        QTest::newRow("cut off") << QStringLiteral("<P><Frequency unit=\"MHz\">5</Frequency>")
                                 << QStringLiteral("Premature end of document.");
    }
    void errorsInAPair()
    {
        QFETCH(QString, xml);
        QFETCH(QString, error);
        XmlFreqThrPairType pair;
        QCOMPARE(readError(pair, xml), error);

        // The pair is none the worse for it.
        QVERIFY(!pair.isValid());
        QVERIFY(!pair.syntaxError().isEmpty());
        QCOMPARE(readError(pair, QStringLiteral("<P>%1%2</P>").arg(frequencyXml, thresholdXml)), QString());
        QVERIFY(pair.isValid());
        QCOMPARE(written(pair, QStringLiteral("Q")),
                 QStringLiteral("<Q version=\"1.0\">%1%2</Q>").arg(frequencyXml, thresholdXml));
    }

    void aPairAtAWrongPosition()
    {
        XmlFreqThrPairType pair;
        XmlFreqType frequency;
        frequency.setFrequency_MHz(5.0);
        pair.setFrequency(frequency);
        pair.setVersion(QStringLiteral("9"));
        QXmlStreamReader reader(QStringLiteral("<P version=\"2.0\">\n  <Frequency unit=\"MHz\">6</Frequency></P>"));
        reader.readNextStartElement();
        QCOMPARE(reader.readNext(), QXmlStreamReader::Characters);
        pair.processXml(reader, QStringLiteral("P"));
        QCOMPARE(reader.errorString(),
                 QStringLiteral("in XmlFreqThrPairType (line 2, column 3): Parse error (wrong position)."));
        QCOMPARE(pair.frequency()->frequency_MHz(), 5.0);
        QCOMPARE(pair.version(), QStringLiteral("1.0"));

        QXmlStreamReader fresh(QStringLiteral("<P/>"));
        pair.processXml(fresh, QStringLiteral("P"));
        QVERIFY(fresh.errorString().endsWith(QStringLiteral("): Parse error (wrong position).")));

        QXmlStreamReader other(QStringLiteral("<P>%1%2</P>").arg(frequencyXml, thresholdXml));
        other.readNextStartElement();
        pair.processXml(other, QStringLiteral("p"));
        QVERIFY(other.errorString().startsWith(QStringLiteral("in XmlFreqThrPairType (line 1, column ")));
        QVERIFY(other.errorString().endsWith(QStringLiteral("): Unexpected token \"EndElement\".")));
    }
};

QTEST_APPLESS_MAIN(ValuelistsTest)
#include "valuelists_test.moc"
