#include "objects/gatedchild.h"
#include "support/elementtest.h"
#include "support/responsetest.h"
#include "support/values.h"

#include <arvxml/resultinfo.h>

#include <memory>
#include <type_traits>
#include <utility>

using namespace ArvXml;
using namespace ResponseTest;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;
using ObjectTest::block;
using ObjectTest::words;
using TestValues::grid;
using TestValues::objName;
using TestValues::text;

namespace {

/// Shows the error text that is kept in a record.
template <typename T>
struct Probe : T {
    using XmlElementBase::mySyntaxError;
};

/// A record of any of the classes.
using RecordPointer = std::shared_ptr<XmlResInfo>;

/// A class of records, and how to deal with its records without knowing it.
struct Kind {
    const char* name;    ///< the class
    QString messageName; ///< the class as messages show it
    RecordPointer (*make)();
    RecordPointer (*copy)(const XmlResInfo& record);
    void (*assign)(XmlResInfo& to, const XmlResInfo& from);
    void (*checkErrorText)(const QString& messageName);
    // Null where there is no comment
    const XmlObjNameType* (*comment)(const XmlResInfo& record) = nullptr;
    void (*setComment)(XmlResInfo& record, const XmlObjNameType& comment) = nullptr;

    bool mayHaveComment() const { return setComment != nullptr; }
};

template <typename T>
void checkErrorText(const QString& messageName)
{
    Probe<T> source;
    source.setObjName(objName(QStringLiteral("N")));
    source.setResultGrid(grid(3));
    XmlGridValuesType values;
    values.setUnit(QStringLiteral("km"));
    source.setGridValues(values);
    source.syntaxError();
    checkKeptErrorText(
        source, QStringLiteral("+++ in %1 Begin:\nNeither AreaPolygon nor AreaRect\n--- in %1 End").arg(messageName));
}

template <typename T>
Kind kindOf(const char* name, const char* messageName)
{
    // What every class of records shows its users.
    static_assert(std::is_base_of_v<XmlElementBase, T>);
    static_assert(std::is_copy_constructible_v<T> && std::is_copy_assignable_v<T>);
    static_assert(std::is_same_v<decltype(std::declval<const T&>().version()), QString>);
    static_assert(ObjectTest::HasSetVersion<T>::value && !ObjectTest::ShowsSupportsVersion<T>::value);
    static_assert(std::is_same_v<decltype(std::declval<const T&>().objName()), const XmlObjNameType*>);
    static_assert(std::is_same_v<decltype(std::declval<const T&>().hasAreaPoly()), bool>);
    static_assert(std::is_same_v<decltype(std::declval<const T&>().areaPoly()), const XmlAreaPolyType*>);
    static_assert(std::is_same_v<decltype(std::declval<const T&>().hasAreaRect()), bool>);
    static_assert(std::is_same_v<decltype(std::declval<const T&>().areaRect()), const XmlAreaRectType*>);
    static_assert(std::is_same_v<decltype(std::declval<const T&>().resultGrid()), const XmlResultGridType*>);
    static_assert(std::is_same_v<decltype(std::declval<const T&>().gridValues()), const XmlGridValuesType*>);

    Kind kind = {};
    kind.name = name;
    kind.messageName = text(messageName);
    kind.make = []() -> RecordPointer { return std::make_shared<T>(); };
    kind.copy = [](const XmlResInfo& record) -> RecordPointer {
        return std::make_shared<T>(static_cast<const T&>(record));
    };
    kind.assign = [](XmlResInfo& to, const XmlResInfo& from) { static_cast<T&>(to) = static_cast<const T&>(from); };
    kind.checkErrorText = checkErrorText<T>;
    return kind;
}

template <typename T, typename = void>
struct HasComment : std::false_type {
};
template <typename T>
struct HasComment<T, std::void_t<decltype(std::declval<T&>().comment())>> : std::true_type {
};

static_assert(!HasComment<XmlResInfo_Cep_Type>::value);
static_assert(!HasComment<XmlResInfo_DetectProb_Type>::value);
static_assert(!HasComment<XmlResInfo_DfCov_Type>::value);
static_assert(!HasComment<XmlResInfo_FindSites_Type>::value);

/// The records that may have a comment. Messages show them under the name of another class.
Kind bestSensor()
{
    using T = XmlResInfo_BestSensor_Type;
    static_assert(std::is_same_v<decltype(std::declval<const T&>().hasComment()), bool>);
    static_assert(std::is_same_v<decltype(std::declval<const T&>().comment()), const XmlObjNameType*>);

    Kind kind = kindOf<T>("XmlResInfo_BestSensor_Type", "XmlResInfo_DetectProb_Type");
    kind.comment = [](const XmlResInfo& record) {
        const auto& self = static_cast<const T&>(record);
        if (self.hasComment() != (self.comment() != nullptr))
            QTest::qFail("hasComment() does not agree with comment()", __FILE__, __LINE__);
        return self.comment();
    };
    kind.setComment = [](XmlResInfo& record, const XmlObjNameType& comment) {
        static_cast<T&>(record).setComment(comment);
    };
    return kind;
}

const QVector<Kind>& kinds()
{
    static const QVector<Kind> all = {
        kindOf<XmlResInfo_Cep_Type>("XmlResInfo_Cep_Type", "XmlResInfo_Cep_Type"),
        kindOf<XmlResInfo_DetectProb_Type>("XmlResInfo_DetectProb_Type", "XmlResInfo_DetectProb_Type"),
        kindOf<XmlResInfo_DfCov_Type>("XmlResInfo_DfCov_Type", "XmlResInfo_DfCov_Type"),
        kindOf<XmlResInfo_FindSites_Type>("XmlResInfo_FindSites_Type", "XmlResInfo_FindSites_Type"),
        bestSensor(),
    };
    return all;
}

/// A row for each class.
void addKinds()
{
    QTest::addColumn<const Kind*>("kind");
    for (const Kind& kind : kinds())
        QTest::newRow(kind.name) << &kind;
}

// The children as they are read and written

const char polygonXml[] = "<AreaPolygon version=\"1.0\">"
                          "<Vertex version=\"1.0\" number=\"0\"><Longitude>8.000000</Longitude>"
                          "<Latitude>50.000000</Latitude></Vertex>"
                          "<Vertex version=\"1.0\" number=\"1\"><Longitude>9.000000</Longitude>"
                          "<Latitude>50.000000</Latitude></Vertex>"
                          "<Vertex version=\"1.0\" number=\"2\"><Longitude>9.000000</Longitude>"
                          "<Latitude>51.000000</Latitude></Vertex></AreaPolygon>";
const char rectangleXml[] = "<AreaRect version=\"1.0\">"
                            "<UpperLeft version=\"1.0\"><Longitude>8.000000</Longitude>"
                            "<Latitude>51.000000</Latitude></UpperLeft>"
                            "<LowerRight version=\"1.0\"><Longitude>9.000000</Longitude>"
                            "<Latitude>50.000000</Latitude></LowerRight></AreaRect>";
const char valuesXml[] = "<Values version=\"1.0\" unit=\"km\"><Min>0.2</Min><Max>3</Max></Values>";
const char newRecordXml[] = "<R version=\"1.0\"><Name></Name><ResultGrid>UNDEFINED</ResultGrid>"
                            "<Values version=\"1.0\" unit=\"\"><Min>0</Min><Max>0</Max></Values></R>";

QString childXml(const QString& tag)
{
    if (tag == QLatin1String("Name"))
        return text("<Name>Result</Name>");
    if (tag == QLatin1String("AreaPolygon"))
        return text(polygonXml);
    if (tag == QLatin1String("AreaRect"))
        return text(rectangleXml);
    if (tag == QLatin1String("ResultGrid"))
        return text("<ResultGrid>100</ResultGrid>");
    if (tag == QLatin1String("Values"))
        return text(valuesXml);
    if (tag == QLatin1String("Comment"))
        return text("<Comment>Remark</Comment>");
    return QStringLiteral("<%1/>").arg(tag);
}

/// The children stand for "{N}", "{P}", "{R}", "{G}", "{V}" and "{C}".
QString withChildren(QString xml)
{
    xml.replace(QLatin1String("{N}"), childXml(QStringLiteral("Name")));
    xml.replace(QLatin1String("{P}"), childXml(QStringLiteral("AreaPolygon")));
    xml.replace(QLatin1String("{R}"), childXml(QStringLiteral("AreaRect")));
    xml.replace(QLatin1String("{G}"), childXml(QStringLiteral("ResultGrid")));
    xml.replace(QLatin1String("{V}"), childXml(QStringLiteral("Values")));
    xml.replace(QLatin1String("{C}"), childXml(QStringLiteral("Comment")));
    return xml;
}
QString withChildren(const char* xml)
{
    return withChildren(text(xml));
}

XmlAreaPolyType polygon()
{
    return readFrom<XmlAreaPolyType>(text(polygonXml));
}

XmlAreaRectType rectangle()
{
    return readFrom<XmlAreaRectType>(text(rectangleXml));
}

XmlGridValuesType values(const QString& unit, double min, double max)
{
    XmlGridValuesType values;
    values.setUnit(unit);
    values.setMin(min);
    values.setMax(max);
    return values;
}

QString wire(const XmlResInfo& record)
{
    return written(record, QStringLiteral("R"));
}

/// What a record may hold or not.
enum Optional { Polygon = 1, Rectangle = 2, Remark = 4 };

int selections(const Kind& kind)
{
    return kind.mayHaveComment() ? 8 : 4;
}

/// A record whose values show \a mark.
RecordPointer recordWith(const Kind& kind, int held, const QString& mark)
{
    RecordPointer record = kind.make();
    record->setVersion(mark);
    record->setObjName(objName(QStringLiteral("name ") + mark));
    record->setResultGrid(grid(mark == QLatin1String("1") ? 1 : 2));
    record->setGridValues(values(QStringLiteral("unit ") + mark, mark.toInt(), 10.0));
    if (held & Polygon) {
        XmlAreaPolyType area;
        area.setVersion(QStringLiteral("polygon ") + mark);
        record->setAreaPoly(area);
    }
    if (held & Rectangle) {
        XmlAreaRectType area;
        area.setVersion(QStringLiteral("rectangle ") + mark);
        record->setAreaRect(area);
    }
    if (held & Remark)
        kind.setComment(*record, objName(QStringLiteral("comment ") + mark));
    return record;
}

/// How such a record is written.
QString recordXml(int held, const QString& mark)
{
    QString xml = QStringLiteral("<R version=\"%1\"><Name>name %1</Name>");
    if (held & Polygon)
        xml += QStringLiteral("<AreaPolygon version=\"polygon %1\"/>");
    if (held & Rectangle) {
        xml += QStringLiteral("<AreaRect version=\"rectangle %1\">"
                              "<UpperLeft version=\"1.0\"><Longitude>-999.999000</Longitude>"
                              "<Latitude>-999.999000</Latitude></UpperLeft>"
                              "<LowerRight version=\"1.0\"><Longitude>-999.999000</Longitude>"
                              "<Latitude>-999.999000</Latitude></LowerRight></AreaRect>");
    }
    xml += mark == QLatin1String("1") ? QStringLiteral("<ResultGrid>10</ResultGrid>")
                                      : QStringLiteral("<ResultGrid>50</ResultGrid>");
    xml += QStringLiteral("<Values version=\"1.0\" unit=\"unit %1\"><Min>%1</Min><Max>10</Max></Values>");
    if (held & Remark)
        xml += QStringLiteral("<Comment>comment %1</Comment>");
    return xml.replace(QLatin1String("%1"), mark) + QStringLiteral("</R>");
}

} // namespace

Q_DECLARE_METATYPE(const Kind*)

class ResultinfoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newRecord_data() { addKinds(); }
    void newRecord();
    void childrenAreAssigned_data() { addKinds(); }
    void childrenAreAssigned();
    void commentIsAssigned();
    void copies_data() { addKinds(); }
    void copies();
    void assignment_data() { addKinds(); }
    void assignment();
    void errorTextIsCopiedAndReset_data() { addKinds(); }
    void errorTextIsCopiedAndReset();
    void written_data() { addKinds(); }
    void written();
    void readBack_data() { addKinds(); }
    void readBack();
    void bothAreasAreNotReadBack_data() { addKinds(); }
    void bothAreasAreNotReadBack();
    void order_data();
    void order();
    void endTags_data();
    void endTags();
    void childrenThatFail_data();
    void childrenThatFail();
    void otherTokensAreSkipped_data() { addKinds(); }
    void otherTokensAreSkipped();
    void tagOfAChild_data() { addKinds(); }
    void tagOfAChild();
    void nothingBehindIsTouched_data() { addKinds(); }
    void nothingBehindIsTouched();
    void wrongPosition_data();
    void wrongPosition();
    void versionsRead_data();
    void versionsRead();
    void areasOfUsedRecord_data() { addKinds(); }
    void areasOfUsedRecord();
    void readingIntoUsedRecord_data() { addKinds(); }
    void readingIntoUsedRecord();
    void commentOfUsedRecord();
    void useAfterFailedRead_data() { addKinds(); }
    void useAfterFailedRead();
    void notWellFormed_data() { addKinds(); }
    void notWellFormed();
    void checked_data() { addKinds(); }
    void checked();
    void versionsChecked_data() { addKinds(); }
    void versionsChecked();
    void everythingWrong_data() { addKinds(); }
    void everythingWrong();
    void commentIsJudgedButNotReported();
    void reset_data() { addKinds(); }
    void reset();
};

void ResultinfoTest::newRecord()
{
    QFETCH(const Kind*, kind);

    const RecordPointer record = kind->make();
    QCOMPARE(record->version(), QStringLiteral("1.0"));
    QVERIFY(record->objName() != nullptr);
    QCOMPARE(record->objName()->objName(), QString());
    QVERIFY(!record->hasAreaPoly() && !record->areaPoly());
    QVERIFY(!record->hasAreaRect() && !record->areaRect());
    QVERIFY(record->resultGrid() != nullptr);
    QCOMPARE(record->resultGrid()->size(), XmlResultGridType::Undefined);
    QVERIFY(record->gridValues() != nullptr);
    QCOMPARE(record->gridValues()->version(), QStringLiteral("1.0"));
    QCOMPARE(record->gridValues()->unit(), QString());
    QCOMPARE(record->gridValues()->min(), 0.0);
    QCOMPARE(record->gridValues()->max(), 0.0);
    if (kind->mayHaveComment())
        QVERIFY(kind->comment(*record) == nullptr);

    QCOMPARE(wire(*record), text(newRecordXml));
    QVERIFY(!record->isValid());
    const QString problems = QStringLiteral("+++ in %1 Begin:\n"
                                            "+++ in XmlObjNameType Begin:\n"
                                            "Object name too short (min. 1).\n"
                                            "--- in XmlObjNameType End\n"
                                            "Neither AreaPolygon nor AreaRect\n"
                                            "+++ in XmlResultGridType Begin:\n"
                                            "Illegal grid size.\n"
                                            "--- in XmlResultGridType End\n"
                                            "+++ in XmlGridValuesType Begin:\n"
                                            "Missing mandatory attributes\n"
                                            "--- in XmlGridValuesType End\n"
                                            "--- in %1 End")
                                 .arg(kind->messageName);
    QCOMPARE(record->syntaxError(), problems);
    QCOMPARE(record->syntaxError(), problems); // not added up
}

void ResultinfoTest::childrenAreAssigned()
{
    QFETCH(const Kind*, kind);

    const RecordPointer record = kind->make();
    record->setVersion(QStringLiteral("any"));
    QCOMPARE(record->version(), QStringLiteral("any"));

    const XmlObjNameType* const heldName = record->objName();
    XmlObjNameType name = objName(QStringLiteral("Result"));
    record->setObjName(name);
    name.setObjName(QStringLiteral("changed"));
    QCOMPARE(record->objName(), heldName);
    QCOMPARE(heldName->objName(), QStringLiteral("Result"));
    record->setObjName(*record->objName());
    QCOMPARE(heldName->objName(), QStringLiteral("Result"));

    const XmlResultGridType* const heldGrid = record->resultGrid();
    XmlResultGridType size = grid(5);
    record->setResultGrid(size);
    size.setSize(XmlResultGridType::Grid10);
    QCOMPARE(record->resultGrid(), heldGrid);
    QCOMPARE(heldGrid->size(), XmlResultGridType::Grid500);
    record->setResultGrid(*record->resultGrid());
    QCOMPARE(heldGrid->size(), XmlResultGridType::Grid500);

    const XmlGridValuesType* const heldValues = record->gridValues();
    XmlGridValuesType range = values(QStringLiteral("dB"), -1.5, 4.25);
    record->setGridValues(range);
    range.setUnit(QStringLiteral("changed"));
    QCOMPARE(record->gridValues(), heldValues);
    QCOMPARE(heldValues->unit(), QStringLiteral("dB"));
    record->setGridValues(*record->gridValues());
    QCOMPARE(heldValues->unit(), QStringLiteral("dB"));
    QCOMPARE(heldValues->min(), -1.5);
    QCOMPARE(heldValues->max(), 4.25);

    // The areas are made, and then assigned into; neither removes the other.
    XmlAreaPolyType poly = polygon();
    record->setAreaPoly(poly);
    QVERIFY(record->hasAreaPoly() && !record->hasAreaRect() && !record->areaRect());
    const XmlAreaPolyType* const heldPoly = record->areaPoly();
    QVERIFY(heldPoly && heldPoly != &poly);
    poly.setVersion(QStringLiteral("2"));
    QCOMPARE(heldPoly->version(), QStringLiteral("1.0"));
    QCOMPARE(heldPoly->vertices().size(), 3);
    record->setAreaPoly(poly);
    QCOMPARE(record->areaPoly(), heldPoly);
    QCOMPARE(heldPoly->version(), QStringLiteral("2"));
    record->setAreaPoly(*record->areaPoly());
    QCOMPARE(heldPoly->vertices().size(), 3);

    XmlAreaRectType rect = rectangle();
    record->setAreaRect(rect);
    QVERIFY(record->hasAreaRect() && record->hasAreaPoly());
    const XmlAreaRectType* const heldRect = record->areaRect();
    QVERIFY(heldRect && heldRect != &rect);
    QCOMPARE(record->areaPoly(), heldPoly);
    rect.setVersion(QStringLiteral("3"));
    QCOMPARE(heldRect->version(), QStringLiteral("1.0"));
    record->setAreaRect(rect);
    QCOMPARE(record->areaRect(), heldRect);
    QCOMPARE(heldRect->version(), QStringLiteral("3"));
    record->setAreaRect(*record->areaRect());
    QCOMPARE(heldRect->upperLeft()->longitude(), 8.0);

    record->setAreaPoly(polygon());
    QCOMPARE(record->areaRect(), heldRect);
}

void ResultinfoTest::commentIsAssigned()
{
    XmlResInfo_BestSensor_Type record;
    XmlObjNameType remark = objName(QStringLiteral("Remark"));
    QVERIFY(!record.hasComment());
    record.setComment(remark);
    QVERIFY(record.hasComment());
    const XmlObjNameType* const held = record.comment();
    QVERIFY(held && held != &remark);
    QVERIFY(held != record.objName());
    remark.setObjName(QStringLiteral("Other"));
    QCOMPARE(held->objName(), QStringLiteral("Remark"));
    record.setComment(remark);
    QCOMPARE(record.comment(), held);
    QCOMPARE(held->objName(), QStringLiteral("Other"));
    record.setComment(*record.comment());
    QCOMPARE(held->objName(), QStringLiteral("Other"));
    QCOMPARE(record.objName()->objName(), QString());
}

void ResultinfoTest::copies()
{
    QFETCH(const Kind*, kind);

    for (int held = 0; held < selections(*kind); ++held) {
        const RecordPointer original = recordWith(*kind, held, QStringLiteral("1"));
        const RecordPointer copy = kind->copy(*original);
        QCOMPARE(wire(*copy), recordXml(held, QStringLiteral("1")));
        QVERIFY(copy->objName() != original->objName());
        QVERIFY(copy->resultGrid() != original->resultGrid());
        QVERIFY(copy->gridValues() != original->gridValues());
        QCOMPARE(copy->hasAreaPoly(), (held & Polygon) != 0);
        QCOMPARE(copy->hasAreaRect(), (held & Rectangle) != 0);
        QVERIFY(!copy->hasAreaPoly() || copy->areaPoly() != original->areaPoly());
        QVERIFY(!copy->hasAreaRect() || copy->areaRect() != original->areaRect());
        if (kind->mayHaveComment()) {
            QCOMPARE(kind->comment(*copy) != nullptr, (held & Remark) != 0);
            QVERIFY(!(held & Remark) || kind->comment(*copy) != kind->comment(*original));
        }
        original->reset();
        QCOMPARE(wire(*copy), recordXml(held, QStringLiteral("1")));
    }
}

void ResultinfoTest::assignment()
{
    QFETCH(const Kind*, kind);

    for (int sourceHolds = 0; sourceHolds < selections(*kind); ++sourceHolds) {
        for (int targetHolds = 0; targetHolds < selections(*kind); ++targetHolds) {
            const RecordPointer source = recordWith(*kind, sourceHolds, QStringLiteral("1"));
            const RecordPointer target = recordWith(*kind, targetHolds, QStringLiteral("2"));
            QCOMPARE(wire(*target), recordXml(targetHolds, QStringLiteral("2")));
            const XmlObjNameType* const name = target->objName();
            const XmlResultGridType* const size = target->resultGrid();
            const XmlGridValuesType* const range = target->gridValues();
            kind->assign(*target, *source);
            QCOMPARE(target->objName(), name);
            QCOMPARE(target->resultGrid(), size);
            QCOMPARE(target->gridValues(), range);
            QCOMPARE(target->hasAreaPoly(), (sourceHolds & Polygon) != 0);
            QCOMPARE(target->hasAreaRect(), (sourceHolds & Rectangle) != 0);
            QCOMPARE(wire(*source), recordXml(sourceHolds, QStringLiteral("1")));
            source->reset();
            QCOMPARE(wire(*target), recordXml(sourceHolds, QStringLiteral("1")));
        }
        const RecordPointer self = recordWith(*kind, sourceHolds, QStringLiteral("2"));
        kind->assign(*self, *self);
        QCOMPARE(wire(*self), recordXml(sourceHolds, QStringLiteral("2")));
    }
}

void ResultinfoTest::errorTextIsCopiedAndReset()
{
    QFETCH(const Kind*, kind);

    kind->checkErrorText(kind->messageName);
}

void ResultinfoTest::written()
{
    QFETCH(const Kind*, kind);

    for (int held = 0; held < selections(*kind); ++held) {
        const RecordPointer record = kind->make();
        record->setObjName(objName(QStringLiteral("a < b & \"c\"")));
        record->setResultGrid(grid(6));
        record->setGridValues(values(QStringLiteral("dB"), -12.5, 1234567.0));
        if (held & Polygon)
            record->setAreaPoly(polygon());
        if (held & Rectangle)
            record->setAreaRect(rectangle());
        if (held & Remark)
            kind->setComment(*record, objName(QStringLiteral("Remark")));
        const QString polygonText = held & Polygon ? text(polygonXml) : QString();
        const QString rectangleText = held & Rectangle ? text(rectangleXml) : QString();
        const QString commentText = held & Remark ? text("<Comment>Remark</Comment>") : QString();
        QCOMPARE(ElementTest::written(*record, QStringLiteral("Result_Any")),
                 text("<Result_Any version=\"1.0\"><Name>a &lt; b &amp; &quot;c&quot;</Name>") + polygonText
                     + rectangleText
                     + text("<ResultGrid>1000</ResultGrid><Values version=\"1.0\" unit=\"dB\"><Min>-12.5</Min>"
                            "<Max>1.23457e+06</Max></Values>")
                     + commentText + text("</Result_Any>"));
    }

    // The version is written as it is, the values with theirs.
    const RecordPointer record = kind->make();
    record->setVersion(QString());
    XmlGridValuesType range;
    range.setVersion(QStringLiteral("3.0"));
    record->setGridValues(range);
    QCOMPARE(wire(*record),
             text("<R version=\"\"><Name></Name><ResultGrid>UNDEFINED</ResultGrid>"
                  "<Values version=\"3.0\" unit=\"\"><Min>0</Min><Max>0</Max></Values></R>"));
}

void ResultinfoTest::readBack()
{
    QFETCH(const Kind*, kind);

    for (const char* area : {"{P}", "{R}"}) {
        for (const char* comment : {"", "{C}"}) {
            if (*comment && !kind->mayHaveComment())
                continue;
            const QString xml =
                withChildren(QStringLiteral("<R version=\"1.0\">{N}%1{G}{V}%2</R>").arg(text(area), text(comment)));
            const RecordPointer record = kind->make();
            QCOMPARE(readError(*record, xml), QString());
            QCOMPARE(record->version(), QStringLiteral("1.0"));
            QCOMPARE(record->objName()->objName(), QStringLiteral("Result"));
            QCOMPARE(record->hasAreaPoly(), text(area) == QLatin1String("{P}"));
            QCOMPARE(record->hasAreaRect(), text(area) == QLatin1String("{R}"));
            QCOMPARE(record->resultGrid()->size(), XmlResultGridType::Grid100);
            QCOMPARE(record->gridValues()->unit(), QStringLiteral("km"));
            QCOMPARE(record->gridValues()->min(), 0.2);
            QCOMPARE(record->gridValues()->max(), 3.0);
            if (kind->mayHaveComment())
                QCOMPARE(kind->comment(*record) != nullptr, *comment != '\0');
            if (*comment)
                QCOMPARE(kind->comment(*record)->objName(), QStringLiteral("Remark"));
            QCOMPARE(wire(*record), xml);
            QVERIFY(record->isValid());
            QCOMPARE(record->syntaxError(), QString());
        }
    }
}

void ResultinfoTest::bothAreasAreNotReadBack()
{
    QFETCH(const Kind*, kind);

    const RecordPointer record = kind->make();
    record->setObjName(objName(QStringLiteral("Result")));
    record->setAreaRect(rectangle());
    record->setAreaPoly(polygon());
    record->setResultGrid(grid(3));
    record->setGridValues(values(QStringLiteral("km"), 0.2, 3.0));
    const QString xml = wire(*record);
    QCOMPARE(xml, withChildren("<R version=\"1.0\">{N}{P}{R}{G}{V}</R>"));

    const RecordPointer again = kind->make();
    const qint64 column = withChildren("<R version=\"1.0\">{N}{P}<AreaRect version=\"1.0\">").size();
    QCOMPARE(readError(*again, xml),
             QStringLiteral("in %1 (line 1, column %2): Unexpected element \"AreaRect\".")
                 .arg(kind->messageName, QString::number(column)));
    QVERIFY(again->hasAreaPoly() && !again->hasAreaRect());
    QCOMPARE(again->areaPoly()->vertices().size(), 3);
    QCOMPARE(again->resultGrid()->size(), XmlResultGridType::Undefined);
}

void ResultinfoTest::order_data()
{
    QTest::addColumn<const Kind*>("kind");
    QTest::addColumn<QStringList>("start");

    for (const Kind& kind : kinds()) {
        const char* const starts[] = {
            "",
            "Name",
            "Name AreaPolygon",
            "Name AreaRect",
            "Name AreaPolygon ResultGrid",
            "Name AreaRect ResultGrid",
            "Name AreaPolygon ResultGrid Values",
            "Name AreaRect ResultGrid Values",
            "Name AreaPolygon ResultGrid Values Comment",
            "Name AreaRect ResultGrid Values Comment",
        };
        for (const char* start : starts) {
            if (kind.mayHaveComment() || !text(start).contains(QLatin1String("Comment")))
                QTest::addRow("%s after: %s", kind.name, start) << &kind << words(start);
        }
    }
}

void ResultinfoTest::order()
{
    QFETCH(const Kind*, kind);
    QFETCH(QStringList, start);

    // What may follow the child read last
    const auto mayFollow = [&](const QString& last) {
        if (last.isEmpty())
            return words("Name");
        if (last == QLatin1String("Name"))
            return words("AreaPolygon AreaRect");
        if (last == QLatin1String("AreaPolygon") || last == QLatin1String("AreaRect"))
            return words("ResultGrid");
        if (last == QLatin1String("ResultGrid"))
            return words("Values");
        return words(kind->mayHaveComment() && last == QLatin1String("Values") ? "Comment" : "");
    };

    // Any two children behind those of the start, one, or none; each on a line of its own
    const QStringList tags = words("Name AreaPolygon AreaRect ResultGrid Values Comment Other name");
    QVector<QStringList> sequences = {start};
    for (const QString& first : tags) {
        sequences.append(start + QStringList(first));
        for (const QString& second : tags)
            sequences.append(start + QStringList({first, second}));
    }
    for (const QStringList& sequence : std::as_const(sequences)) {
        QString xml = QStringLiteral("<R>\n");
        for (const QString& tag : sequence)
            xml += childXml(tag) + QLatin1Char('\n');
        xml += QStringLiteral("</R>");

        QStringList read;
        QString message;
        qint64 line = 1;
        qint64 column = 0;
        for (const QString& tag : sequence) {
            ++line;
            if (!mayFollow(read.isEmpty() ? QString() : read.last()).contains(tag)) {
                message = QStringLiteral("Unexpected element \"%1\"").arg(tag);
                column = childXml(tag).indexOf(QLatin1Char('>')) + 1;
                break;
            }
            read.append(tag);
        }
        if (message.isEmpty() && !read.contains(QStringLiteral("Values"))) {
            message = QStringLiteral("Unexpected token \"EndElement\"");
            ++line;
            column = 4;
        }
        const QString error = message.isEmpty()
            ? QString()
            : QStringLiteral("in %1 (line %2, column %3): %4.")
                  .arg(kind->messageName, QString::number(line), QString::number(column), message);

        const RecordPointer record = kind->make();
        QCOMPARE(readError(*record, xml), error);

        // What was read until then is kept, each child in its place.
        QString held = QStringLiteral("<R version=\"1.0\">");
        const auto add = [&](const char* tag, const char* initial) {
            held += read.contains(text(tag)) ? childXml(text(tag)) : text(initial);
        };
        add("Name", "<Name></Name>");
        add("AreaPolygon", "");
        add("AreaRect", "");
        add("ResultGrid", "<ResultGrid>UNDEFINED</ResultGrid>");
        add("Values", "<Values version=\"1.0\" unit=\"\"><Min>0</Min><Max>0</Max></Values>");
        add("Comment", "");
        QCOMPARE(wire(*record), held + QStringLiteral("</R>"));
        QCOMPARE(record->isValid(), error.isEmpty() || read.contains(QStringLiteral("Values")));
    }
}

void ResultinfoTest::endTags_data()
{
    QTest::addColumn<const Kind*>("kind");
    QTest::addColumn<QString>("marked");

    for (const Kind& kind : kinds()) {
        QTest::addRow("%s: an empty element", kind.name) << &kind << text("<R/>|");
        QTest::addRow("%s: another end tag", kind.name) << &kind << withChildren("<Q>{N}{P}{G}{V}\n</Q>|");
        QTest::addRow("%s: a tag is compared with its case", kind.name)
            << &kind << withChildren("<r>\n{N}{R}{G}{V}</r>|");
        QTest::addRow("%s: another end tag of a record without values", kind.name)
            << &kind << withChildren("<Q>{N}{P}{G}\n</Q>|");
    }
    QTest::addRow("another end tag behind a comment") << &kinds().last() << withChildren("<Q>{N}{P}{G}{V}{C}</Q>|");
}

void ResultinfoTest::endTags()
{
    QFETCH(const Kind*, kind);
    QFETCH(QString, marked);

    const Refusal document = refusal(marked, kind->messageName, QStringLiteral("Unexpected token \"EndElement\""));
    QXmlStreamReader reader(document.xml);
    reader.readNextStartElement();
    const RecordPointer record = kind->make();
    record->processXml(reader, QStringLiteral("R"));
    QCOMPARE(reader.errorString(), document.error);
}

void ResultinfoTest::childrenThatFail_data()
{
    QTest::addColumn<const Kind*>("kind");
    QTest::addColumn<QString>("marked");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("held");

    const struct {
        const char* name;
        const char* marked;
        const char* className;
        const char* message;
        const char* held;
    } rows[] = {
        {"an element in the name", "<R>\n<Name>a<x>|</x></Name>{P}{G}{V}</R>", "XmlObjNameType",
         "Unexpected token \"StartElement\"",
         "<R version=\"1.0\"><Name>a</Name><ResultGrid>UNDEFINED</ResultGrid>"
         "<Values version=\"1.0\" unit=\"\"><Min>0</Min><Max>0</Max></Values></R>"},
        {"a polygon without vertices", "<R>{N}\n<AreaPolygon></AreaPolygon>|{G}{V}</R>", "XmlAreaPolyType",
         "Unexpected token \"EndElement\": AreaPolygon",
         "<R version=\"1.0\">{N}<AreaPolygon version=\"1.0\"/><ResultGrid>UNDEFINED</ResultGrid>"
         "<Values version=\"1.0\" unit=\"\"><Min>0</Min><Max>0</Max></Values></R>"},
        {"a rectangle of another version", "<R>{N}\n<AreaRect version=\"2.0\">|</AreaRect>{G}{V}</R>",
         "XmlAreaRectType", "Version not supported: 2.0",
         "<R version=\"1.0\">{N}<AreaRect version=\"2.0\"><UpperLeft version=\"1.0\">"
         "<Longitude>-999.999000</Longitude><Latitude>-999.999000</Latitude></UpperLeft>"
         "<LowerRight version=\"1.0\"><Longitude>-999.999000</Longitude><Latitude>-999.999000</Latitude>"
         "</LowerRight></AreaRect><ResultGrid>UNDEFINED</ResultGrid>"
         "<Values version=\"1.0\" unit=\"\"><Min>0</Min><Max>0</Max></Values></R>"},
        {"another grid", "<R>{N}{R}\n<ResultGrid>20<|/ResultGrid>{V}</R>", "XmlResultGridType", "Illegal enum value.",
         "<R version=\"1.0\">{N}{R}<ResultGrid>UNDEFINED</ResultGrid>"
         "<Values version=\"1.0\" unit=\"\"><Min>0</Min><Max>0</Max></Values></R>"},
        {"values without attributes", "<R>{N}{R}{G}\n<Values>|<Min>1</Min><Max>2</Max></Values></R>",
         "XmlGridValuesType", "Missing mandatory attributes",
         "<R version=\"1.0\">{N}{R}{G}<Values version=\"1.0\" unit=\"\"><Min>0</Min><Max>0</Max></Values></R>"},
        {"values without a unit", "<R>{N}{R}{G}\n<Values version=\"1.0\">|<Min>1</Min><Max>2</Max></Values></R>",
         "XmlGridValuesType", "Missing mandatory attributes",
         "<R version=\"1.0\">{N}{R}{G}<Values version=\"1.0\" unit=\"\"><Min>0</Min><Max>0</Max></Values></R>"},
        {"values of another version",
         "<R>{N}{R}{G}\n<Values version=\"2.0\" unit=\"km\">|<Min>1</Min><Max>2</Max></Values></R>",
         "XmlGridValuesType", "Version not supported: 2.0",
         "<R version=\"1.0\">{N}{R}{G}<Values version=\"2.0\" unit=\"km\"><Min>0</Min><Max>0</Max></Values></R>"},
        // White space is fine between the children, but not in the values: an indented record cannot be read.
        {"white space before the lowest value",
         "<R>\n  {N}\n  {P}\n  {G}\n  <Values unit=\"km\">\n    <|Min>1</Min>\n    <Max>2</Max>\n  </Values>\n</R>",
         "XmlGridValuesType", "Unexpected characters",
         "<R version=\"1.0\">{N}{P}{G}<Values version=\"1.0\" unit=\"km\"><Min>0</Min><Max>0</Max></Values></R>"},
        {"white space between the values",
         "<R>\n{N}\n{P}\n{G}\n<Values unit=\"km\"><Min>1</Min> <|Max>2</Max></Values>\n</R>", "XmlGridValuesType",
         "Unexpected characters",
         "<R version=\"1.0\">{N}{P}{G}<Values version=\"1.0\" unit=\"km\"><Min>1</Min><Max>0</Max></Values></R>"},
        {"white space after the highest value",
         "<R>\n{N}\n{P}\n{G}\n<Values unit=\"km\"><Min>1</Min><Max>2</Max>\n<|/Values>\n</R>", "XmlGridValuesType",
         "Unexpected characters",
         "<R version=\"1.0\">{N}{P}{G}<Values version=\"1.0\" unit=\"km\"><Min>1</Min><Max>2</Max></Values></R>"},
    };
    for (const Kind& kind : kinds()) {
        for (const auto& row : rows) {
            QTest::addRow("%s: %s", kind.name, row.name) << &kind << withChildren(row.marked) << text(row.className)
                                                         << text(row.message) << withChildren(row.held);
        }
    }
    QTest::addRow("an element in the comment")
        << &kinds().last() << withChildren("<R>{N}{R}{G}{V}\n<Comment>a<x/>|</Comment></R>") << text("XmlObjNameType")
        << text("Unexpected token \"StartElement\"")
        << withChildren("<R version=\"1.0\">{N}{R}{G}{V}<Comment>a</Comment></R>");
}

void ResultinfoTest::childrenThatFail()
{
    QFETCH(const Kind*, kind);
    QFETCH(QString, marked);
    QFETCH(QString, className);
    QFETCH(QString, message);
    QFETCH(QString, held);

    const Refusal document = refusal(marked, className, message);
    const RecordPointer record = kind->make();
    QCOMPARE(readError(*record, document.xml), document.error);
    QCOMPARE(wire(*record), held);
}

void ResultinfoTest::otherTokensAreSkipped()
{
    QFETCH(const Kind*, kind);

    const QString comment = kind->mayHaveComment() ? QStringLiteral("{C}") : QString();
    const RecordPointer record = kind->make();
    QCOMPARE(readError(*record,
                       withChildren(QStringLiteral("<R other=\"2.0\">text<!-- c --><?pi d?>{N}<![CDATA[<x/>]]>{P} 5 "
                                                   "<!-- c -->{G}&amp;<?pi d?>{V}x<!-- c -->%1\n<?pi d?></R>")
                                        .arg(comment))),
             QString());
    QCOMPARE(wire(*record), withChildren(QStringLiteral("<R version=\"1.0\">{N}{P}{G}{V}%1</R>").arg(comment)));
}

void ResultinfoTest::tagOfAChild()
{
    QFETCH(const Kind*, kind);

    // The tag is its own, whatever its children are called.
    for (const QString& tag : words("Name AreaPolygon AreaRect ResultGrid Values Comment")) {
        QXmlStreamReader reader(withChildren(QStringLiteral("<%1>{N}{R}{G}{V}</%1>").arg(tag)));
        reader.readNextStartElement();
        const RecordPointer record = kind->make();
        record->processXml(reader, tag);
        QCOMPARE(reader.errorString(), QString());
        QCOMPARE(wire(*record), withChildren("<R version=\"1.0\">{N}{R}{G}{V}</R>"));
        QVERIFY(reader.isEndElement());
        QCOMPARE(reader.readNext(), QXmlStreamReader::EndDocument);
    }
}

void ResultinfoTest::nothingBehindIsTouched()
{
    QFETCH(const Kind*, kind);

    QXmlStreamReader reader(withChildren("<Doc><R>{N}{R}{G}{V}</R><Comment>Next</Comment></Doc>"));
    reader.readNextStartElement();
    reader.readNextStartElement();
    const RecordPointer record = kind->make();
    record->processXml(reader, QStringLiteral("R"));
    QCOMPARE(reader.errorString(), QString());
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.readElementText(), QStringLiteral("Next"));
}

void ResultinfoTest::wrongPosition_data()
{
    addWrongPositions("line 2, column 22", "line 2, column 29", "line 2, column 33");
}

void ResultinfoTest::wrongPosition()
{
    QFETCH(int, tokens);
    QFETCH(QString, place);

    for (const Kind& kind : kinds()) {
        QXmlStreamReader reader(text("<?xml version=\"1.0\"?>\n<R version=\"2.0\">text<!-- --></R>"));
        for (int i = 0; i < tokens; ++i)
            reader.readNext();
        const RecordPointer record = recordWith(kind, Polygon, QStringLiteral("2"));
        record->processXml(reader, QStringLiteral("R"));
        QCOMPARE(reader.errorString(),
                 QStringLiteral("in %1 (%2): Parse error (wrong position).").arg(kind.messageName, place));
        QCOMPARE(record->version(), QStringLiteral("1.0")); // all that has changed
        record->setVersion(QStringLiteral("2"));
        QCOMPARE(wire(*record), recordXml(Polygon, QStringLiteral("2")));
    }
}

void ResultinfoTest::versionsRead_data()
{
    QTest::addColumn<QString>("held");
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("version");

    for (const char* held : {"1.0", "9.9", ""}) {
        const auto row = [held](const char* name, const char* attribute, const char* message, const char* version) {
            QTest::addRow("%s, where \"%s\" is held", name, held)
                << text(held) << text(attribute) << text(message) << text(version);
        };
        row("absent", "", "", "1.0");
        row("empty", " version=\"\"", "", "1.0");
        row("supported", " version=\"1.0\"", "", "1.0");
        row("not supported", " version=\"2.0\"", "Version not supported: 2.0", "2.0");
        row("written otherwise", " version=\"1.00\"", "Version not supported: 1.00", "1.00");
        row("with white space", " version=\"1.0 \"", "Version not supported: 1.0 ", "1.0 ");
        row("of another name", " Version=\"2.0\"", "", "1.0");
    }
}

void ResultinfoTest::versionsRead()
{
    QFETCH(QString, held);
    QFETCH(QString, attribute);
    QFETCH(QString, message);
    QFETCH(QString, version);

    for (const Kind& kind : kinds()) {
        const Refusal document =
            refusal(withChildren(QStringLiteral("\n<R%1>|{N}{P}{G}{V}</R>").arg(attribute)), kind.messageName, message);
        const RecordPointer record = kind.make();
        record->setVersion(held);
        QCOMPARE(readError(*record, document.xml), message.isEmpty() ? QString() : document.error);
        QCOMPARE(record->version(), version);
        QCOMPARE(record->isValid(), message.isEmpty());
        QCOMPARE(record->objName()->objName(), message.isEmpty() ? QStringLiteral("Result") : QString());
    }
}

void ResultinfoTest::areasOfUsedRecord()
{
    QFETCH(const Kind*, kind);

    const QString polygonDocument = withChildren("<R>{N}{P}{G}{V}</R>");
    const QString rectangleDocument = withChildren("<R>{N}{R}{G}{V}</R>");
    for (int held = 0; held < 4; ++held) {
        XmlAreaPolyType point;
        XmlNumCoordType vertex;
        vertex.setLongitude(7.0);
        vertex.setLatitude(49.0);
        vertex.setNumber(7);
        point.setVertices({&vertex});

        // The polygon held is read into, the rectangle goes.
        const RecordPointer first = kind->make();
        if (held & Polygon)
            first->setAreaPoly(point);
        if (held & Rectangle)
            first->setAreaRect(XmlAreaRectType());
        const XmlAreaPolyType* const heldPolygon = first->areaPoly();
        QCOMPARE(readError(*first, polygonDocument), QString());
        QVERIFY(first->hasAreaPoly() && !first->hasAreaRect() && !first->areaRect());
        QCOMPARE(first->areaPoly()->vertices().size(), held & Polygon ? 4 : 3);
        QVERIFY(!heldPolygon || first->areaPoly() == heldPolygon);

        // And the other way round
        const RecordPointer second = kind->make();
        if (held & Polygon)
            second->setAreaPoly(point);
        if (held & Rectangle)
            second->setAreaRect(XmlAreaRectType());
        const XmlAreaRectType* const heldRectangle = second->areaRect();
        QCOMPARE(readError(*second, rectangleDocument), QString());
        QVERIFY(second->hasAreaRect() && !second->hasAreaPoly() && !second->areaPoly());
        QCOMPARE(second->areaRect()->upperLeft()->longitude(), 8.0);
        QVERIFY(!heldRectangle || second->areaRect() == heldRectangle);

        // The other one also goes when the reading fails; without an area in the document, both stay.
        const RecordPointer failed = kind->make();
        if (held & Polygon)
            failed->setAreaPoly(point);
        if (held & Rectangle)
            failed->setAreaRect(rectangle());
        QCOMPARE(
            readError(*failed, text("<R><Name>N</Name><ResultGrid>10</ResultGrid></R>")),
            QStringLiteral("in %1 (line 1, column 29): Unexpected element \"ResultGrid\".").arg(kind->messageName));
        QCOMPARE(failed->hasAreaPoly(), (held & Polygon) != 0);
        QCOMPARE(failed->hasAreaRect(), (held & Rectangle) != 0);
        QCOMPARE(readError(*failed, text("<R><Name>N</Name><AreaRect><x/></AreaRect></R>")),
                 text("in XmlAreaRectType (line 1, column 31): Unexpected token \"StartElement\": x."));
        QVERIFY(failed->hasAreaRect() && !failed->hasAreaPoly());
        QCOMPARE(failed->areaRect()->upperLeft()->longitude(), held & Rectangle ? 8.0 : -999.999);
        QCOMPARE(readError(*failed, text("<R><Name>N</Name><AreaPolygon><x/></AreaPolygon></R>")),
                 text("in XmlAreaPolyType (line 1, column 34): Unexpected token \"StartElement\": x."));
        QVERIFY(failed->hasAreaPoly() && !failed->hasAreaRect());
        QCOMPARE(failed->areaPoly()->vertices().size(), 0);
    }
}

void ResultinfoTest::readingIntoUsedRecord()
{
    QFETCH(const Kind*, kind);

    const RecordPointer record = recordWith(*kind, Polygon, QStringLiteral("2"));
    const XmlObjNameType* const name = record->objName();
    const XmlResultGridType* const size = record->resultGrid();
    const XmlGridValuesType* const range = record->gridValues();
    QCOMPARE(readError(*record, withChildren("<R>{N}{R}{G}{V}</R>")), QString());
    QCOMPARE(wire(*record), withChildren("<R version=\"1.0\">{N}{R}{G}{V}</R>"));

    // The children that are always there read what the document says, and keep the rest.
    QCOMPARE(readError(*record, withChildren("<R><Name/>{R}<ResultGrid/><Values><Min/><Max>7</Max></Values></R>")),
             QString());
    QCOMPARE(wire(*record),
             withChildren("<R version=\"1.0\">{N}{R}{G}<Values version=\"1.0\" unit=\"km\"><Min>0.2</Min><Max>7</Max>"
                          "</Values></R>"));
    QCOMPARE(record->objName(), name);
    QCOMPARE(record->resultGrid(), size);
    QCOMPARE(record->gridValues(), range);
}

void ResultinfoTest::commentOfUsedRecord()
{
    XmlResInfo_BestSensor_Type record;
    record.setComment(objName(QStringLiteral("old")));
    QCOMPARE(readError(record, withChildren("<R>{N}{R}{G}{V}</R>")), QString());
    QVERIFY(record.hasComment());
    QCOMPARE(record.comment()->objName(), QStringLiteral("old"));
    QVERIFY(record.isValid());

    // The comment is not read into the one held, but made anew: an empty one leaves nothing of it.
    QCOMPARE(readError(record, withChildren("<R>{N}{R}{G}{V}<Comment/></R>")), QString());
    QVERIFY(record.hasComment());
    QCOMPARE(record.comment()->objName(), QString());
    QVERIFY(!record.isValid());

    QCOMPARE(readError(record, withChildren("<R>{N}{R}{G}{V}<Comment>new</Comment></R>")), QString());
    QCOMPARE(record.comment()->objName(), QStringLiteral("new"));
    QCOMPARE(record.objName()->objName(), QStringLiteral("Result"));

    // One that is out of place changes nothing.
    QCOMPARE(readError(record, withChildren("<R>{N}{R}{G}\n<Comment>early</Comment>{V}</R>")),
             text("in XmlResInfo_DetectProb_Type (line 2, column 9): Unexpected element \"Comment\"."));
    QCOMPARE(record.comment()->objName(), QStringLiteral("new"));
}

void ResultinfoTest::useAfterFailedRead()
{
    QFETCH(const Kind*, kind);

    const RecordPointer record = kind->make();
    QCOMPARE(readError(*record, withChildren("<R>{N}{P}\n<x/></R>")),
             QStringLiteral("in %1 (line 2, column 4): Unexpected element \"x\".").arg(kind->messageName));
    QVERIFY(!record->isValid());
    QCOMPARE(record->syntaxError(),
             QStringLiteral("+++ in %1 Begin:\n"
                            "+++ in XmlResultGridType Begin:\n"
                            "Illegal grid size.\n"
                            "--- in XmlResultGridType End\n"
                            "+++ in XmlGridValuesType Begin:\n"
                            "Missing mandatory attributes\n"
                            "--- in XmlGridValuesType End\n"
                            "--- in %1 End")
                 .arg(kind->messageName));
    QCOMPARE(wire(*kind->copy(*record)),
             withChildren("<R version=\"1.0\">{N}{P}<ResultGrid>UNDEFINED</ResultGrid>"
                          "<Values version=\"1.0\" unit=\"\"><Min>0</Min><Max>0</Max></Values></R>"));
    // The gates are open again, the error is forgotten.
    QCOMPARE(readError(*record, withChildren("<R>{N}{R}{G}{V}</R>")), QString());
    QCOMPARE(wire(*record), withChildren("<R version=\"1.0\">{N}{R}{G}{V}</R>"));
    QVERIFY(record->isValid());
    QCOMPARE(record->syntaxError(), QString());
    record->reset();
    QVERIFY(!record->isValid());
}

void ResultinfoTest::notWellFormed()
{
    QFETCH(const Kind*, kind);

    const RecordPointer record = kind->make();
    QXmlStreamReader broken(withChildren("<R>{N}{P}{G}{V}</S>"));
    broken.readNextStartElement();
    record->processXml(broken, QStringLiteral("R"));
    QCOMPARE(broken.error(), QXmlStreamReader::NotWellFormedError);
    QCOMPARE(broken.errorString(), text("Opening and ending tag mismatch.")); // the reader's own, not replaced
    QCOMPARE(wire(*record), withChildren("<R version=\"1.0\">{N}{P}{G}{V}</R>"));

    const RecordPointer cut = kind->make();
    QCOMPARE(readError(*cut, withChildren("<R>{N}")), text("Premature end of document."));
    QCOMPARE(cut->objName()->objName(), QStringLiteral("Result"));
}

void ResultinfoTest::checked()
{
    QFETCH(const Kind*, kind);

    enum State { Absent, Valid, Invalid };
    XmlAreaPolyType wrongPolygon = polygon();
    wrongPolygon.setVersion(QStringLiteral("3.0"));
    XmlAreaRectType wrongRectangle = rectangle();
    wrongRectangle.setVersion(QStringLiteral("4.0"));

    // Everything that a record holds, valid or not, in every combination
    const int commentStates = kind->mayHaveComment() ? 3 : 1;
    for (int state = 0; state < 16 * 9 * commentStates; ++state) {
        const bool versionValid = (state & 1) == 0;
        const bool nameValid = (state & 2) == 0;
        const bool gridValid = (state & 4) == 0;
        const bool valuesValid = (state & 8) == 0;
        const int polygonState = state / 16 % 3;
        const int rectangleState = state / 48 % 3;
        const int commentState = state / 144;

        const RecordPointer record = kind->make();
        record->setVersion(versionValid ? QStringLiteral("1.0") : QStringLiteral("2.0"));
        record->setObjName(objName(nameValid ? QStringLiteral("N") : QString()));
        if (polygonState != Absent)
            record->setAreaPoly(polygonState == Valid ? polygon() : wrongPolygon);
        if (rectangleState != Absent)
            record->setAreaRect(rectangleState == Valid ? rectangle() : wrongRectangle);
        record->setResultGrid(grid(gridValid ? 6 : 0));
        record->setGridValues(values(valuesValid ? QStringLiteral("km") : QString(), 1.0, 2.0));
        if (commentState != Absent)
            kind->setComment(*record, objName(commentState == Valid ? QStringLiteral("C") : QString()));

        QStringList problems;
        if (!versionValid)
            problems += QStringLiteral("Version \"2.0\" not supported");
        if (!nameValid)
            problems += block("XmlObjNameType", QStringLiteral("Object name too short (min. 1)."));
        // The polygon goes before the rectangle.
        if (polygonState == Invalid)
            problems += block("XmlAreaPolyType", QStringLiteral("Version \"3.0\" not supported"));
        else if (polygonState == Absent && rectangleState == Invalid)
            problems += block("XmlAreaRectType", QStringLiteral("Version \"4.0\" not supported"));
        else if (polygonState == Absent && rectangleState == Absent)
            problems += QStringLiteral("Neither AreaPolygon nor AreaRect");
        if (!gridValid)
            problems += block("XmlResultGridType", QStringLiteral("Illegal grid size."));
        if (!valuesValid)
            problems += block("XmlGridValuesType", QStringLiteral("Missing mandatory attributes"));

        const QString error =
            problems.isEmpty() ? QString() : block(qPrintable(kind->messageName), problems.join(QLatin1Char('\n')));
        QCOMPARE(record->isValid(), problems.isEmpty() && commentState != Invalid); // told of all but the comment
        QCOMPARE(record->syntaxError(), error);
        QCOMPARE(record->syntaxError(), error);
        QCOMPARE(record->isValid(), problems.isEmpty() && commentState != Invalid);
    }
}

void ResultinfoTest::versionsChecked()
{
    QFETCH(const Kind*, kind);

    for (const char* version : {"", "1.00", "1", "1.0 ", "%1"}) {
        const RecordPointer record = kind->make();
        QCOMPARE(readError(*record, withChildren("<R>{N}{P}{G}{V}</R>")), QString());
        QVERIFY(record->isValid());
        record->setVersion(text(version));
        QVERIFY(!record->isValid());
        QCOMPARE(record->syntaxError(),
                 text("+++ in ") + kind->messageName + text(" Begin:\nVersion \"") + text(version)
                     + text("\" not supported\n--- in ") + kind->messageName + text(" End"));
        record->setVersion(QStringLiteral("1.0"));
        QVERIFY(record->isValid());
        QCOMPARE(record->syntaxError(), QString());
    }
}

void ResultinfoTest::everythingWrong()
{
    QFETCH(const Kind*, kind);

    const RecordPointer record = recordWith(*kind, kind->mayHaveComment() ? 7 : 3, QStringLiteral("2"));
    record->setObjName(objName(QString(129, QLatin1Char('n'))));
    record->setResultGrid(grid(0));
    record->setGridValues(values(QString(), 1.0, 2.0));
    if (kind->mayHaveComment())
        kind->setComment(*record, objName(QString(129, QLatin1Char('c'))));
    QVERIFY(!record->isValid());
    QCOMPARE(record->syntaxError(),
             QStringLiteral("+++ in %1 Begin:\n"
                            "Version \"2\" not supported\n"
                            "+++ in XmlObjNameType Begin:\n"
                            "Object name too long (max. 128)\n"
                            "--- in XmlObjNameType End\n"
                            "+++ in XmlAreaPolyType Begin:\n"
                            "Version \"polygon 2\" not supported\n"
                            "--- in XmlAreaPolyType End\n"
                            "+++ in XmlResultGridType Begin:\n"
                            "Illegal grid size.\n"
                            "--- in XmlResultGridType End\n"
                            "+++ in XmlGridValuesType Begin:\n"
                            "Missing mandatory attributes\n"
                            "--- in XmlGridValuesType End\n"
                            "--- in %1 End")
                 .arg(kind->messageName));
}

void ResultinfoTest::commentIsJudgedButNotReported()
{
    auto record = readFrom<XmlResInfo_BestSensor_Type>(withChildren("<R>{N}{P}{G}{V}</R>"));
    QVERIFY(record.isValid());
    for (const QString& wrong : {QString(), QString(129, QLatin1Char('c'))}) {
        record.setComment(objName(wrong));
        QVERIFY(!record.isValid());
        QCOMPARE(record.syntaxError(), QString());
    }
    record.setComment(objName(QString(128, QLatin1Char('c'))));
    QVERIFY(record.isValid());
    QCOMPARE(record.syntaxError(), QString());
}

void ResultinfoTest::reset()
{
    QFETCH(const Kind*, kind);

    for (int held = 0; held < selections(*kind); ++held) {
        const RecordPointer record = recordWith(*kind, held, QStringLiteral("2"));
        const XmlObjNameType* const name = record->objName();
        const XmlResultGridType* const size = record->resultGrid();
        const XmlGridValuesType* const range = record->gridValues();
        record->reset();
        QCOMPARE(record->version(), QStringLiteral("1.0"));
        QVERIFY(!record->hasAreaPoly() && !record->areaPoly());
        QVERIFY(!record->hasAreaRect() && !record->areaRect());
        if (kind->mayHaveComment())
            QVERIFY(kind->comment(*record) == nullptr);
        QCOMPARE(record->objName(), name);
        QCOMPARE(record->resultGrid(), size);
        QCOMPARE(record->gridValues(), range);
        // The values keep their unit, as they do when they are reset.
        QCOMPARE(wire(*record),
                 text("<R version=\"1.0\"><Name></Name><ResultGrid>UNDEFINED</ResultGrid>"
                      "<Values version=\"1.0\" unit=\"unit 2\"><Min>0</Min><Max>0</Max></Values></R>"));
        QVERIFY(!record->isValid());
        QCOMPARE(record->syntaxError(),
                 QStringLiteral("+++ in %1 Begin:\n"
                                "+++ in XmlObjNameType Begin:\n"
                                "Object name too short (min. 1).\n"
                                "--- in XmlObjNameType End\n"
                                "Neither AreaPolygon nor AreaRect\n"
                                "+++ in XmlResultGridType Begin:\n"
                                "Illegal grid size.\n"
                                "--- in XmlResultGridType End\n"
                                "--- in %1 End")
                     .arg(kind->messageName));
    }
}

QTEST_APPLESS_MAIN(ResultinfoTest)
#include "resultinfo_test.moc"
