#include "support/samples.h"

// Every class under its own name.
#include <arvxml/IXmlElement>
#include <arvxml/XmlAoiType>
#include <arvxml/XmlAreaPolyType>
#include <arvxml/XmlAreaRectType>
#include <arvxml/XmlArvBtType>
#include <arvxml/XmlAutoRespType>
#include <arvxml/XmlBandwidthType>
#include <arvxml/XmlBestSensorType>
#include <arvxml/XmlCepProbType>
#include <arvxml/XmlCepType>
#include <arvxml/XmlCmdAdmin>
#include <arvxml/XmlCmdCalc>
#include <arvxml/XmlCmdCreate>
#include <arvxml/XmlCmdDelete>
#include <arvxml/XmlCmdRoot>
#include <arvxml/XmlCoordinateType>
#include <arvxml/XmlDBMListType>
#include <arvxml/XmlDBMType>
#include <arvxml/XmlDecibelListType>
#include <arvxml/XmlDecibelType>
#include <arvxml/XmlDegreesListType>
#include <arvxml/XmlDegreesType>
#include <arvxml/XmlDeploymentAreaType>
#include <arvxml/XmlDetectProbType>
#include <arvxml/XmlDeviceCategoryType>
#include <arvxml/XmlDeviceListType>
#include <arvxml/XmlDeviceType>
#include <arvxml/XmlDfCovType>
#include <arvxml/XmlDfPrecisionType>
#include <arvxml/XmlDfType>
#include <arvxml/XmlElementBase>
#include <arvxml/XmlEmitterType>
#include <arvxml/XmlFieldstrengthType>
#include <arvxml/XmlFindSitesType>
#include <arvxml/XmlFreqListType>
#include <arvxml/XmlFreqThrListType>
#include <arvxml/XmlFreqThrPairType>
#include <arvxml/XmlFreqType>
#include <arvxml/XmlGridResultType>
#include <arvxml/XmlGridValuesType>
#include <arvxml/XmlInteractRespType>
#include <arvxml/XmlInterlinkPlanningType>
#include <arvxml/XmlInterlinkResultType>
#include <arvxml/XmlKeyType>
#include <arvxml/XmlLengthType>
#include <arvxml/XmlMapListType>
#include <arvxml/XmlMapType>
#include <arvxml/XmlNameAllMultiType>
#include <arvxml/XmlNameAllType>
#include <arvxml/XmlNumCoordType>
#include <arvxml/XmlObjNameType>
#include <arvxml/XmlOrderDef>
#include <arvxml/XmlPowerType>
#include <arvxml/XmlPropModelEnumType>
#include <arvxml/XmlPropModelFSType>
#include <arvxml/XmlPropModelHataType>
#include <arvxml/XmlPropModelITMType>
#include <arvxml/XmlPropModelOLOSType>
#include <arvxml/XmlPropModelP1546Type>
#include <arvxml/XmlPropModelP452Type>
#include <arvxml/XmlPropModelP526Type>
#include <arvxml/XmlPropModelP533Type>
#include <arvxml/XmlPropModelType>
#include <arvxml/XmlReceiverType>
#include <arvxml/XmlReferenceType>
#include <arvxml/XmlResInfo_BestSensor_Type>
#include <arvxml/XmlResInfo_Cep_Type>
#include <arvxml/XmlResInfo_DetectProb_Type>
#include <arvxml/XmlResInfo_DfCov_Type>
#include <arvxml/XmlResInfo_FindSites_Type>
#include <arvxml/XmlRespRoot>
#include <arvxml/XmlResultGridType>
#include <arvxml/XmlResultObjectType>
#include <arvxml/XmlRxParamType>
#include <arvxml/XmlSignalPathType>
#include <arvxml/XmlSinadType>
#include <arvxml/XmlStationInterlinkType>
#include <arvxml/XmlStationType>
#include <arvxml/XmlTxParamType>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

#include <memory>
#include <type_traits>
#include <utility>

/// \file
/// What all classes have in common, asked of each one.

using namespace ArvXml;
using Samples::Element;
using Samples::ElementClass;
using Samples::Sample;

namespace {

/// One class that the protocol names.
struct NamedClass {
    const char* name;
    const char* messageName; ///< the class that messages show
    bool hasVersion;         ///< whether there are version() and setVersion()
};

// All concrete classes.
constexpr NamedClass namedClasses[] = {
    {"XmlAoiType", "XmlAoiType", true},
    {"XmlAreaPolyType", "XmlAreaPolyType", true},
    {"XmlAreaRectType", "XmlAreaRectType", true},
    {"XmlArvBtType", "XmlArvBtType", true},
    {"XmlAutoRespType", "XmlAutoRespType", false},
    {"XmlBandwidthType", "XmlBandwidthType", true},
    {"XmlBestSensorType", "XmlBestSensorType", false},
    {"XmlCepProbType", "XmlCepProbType", false},
    {"XmlCepType", "XmlCepType", false},
    {"XmlCmdAdmin", "XmlCmdAdmin", false},
    {"XmlCmdCalc", "XmlCmdCalc", false},
    {"XmlCmdCreate", "XmlCmdCreate", false},
    {"XmlCmdDelete", "XmlCmdDelete", false},
    {"XmlCmdRoot", "XmlCmdRoot", false},
    {"XmlCoordinateType", "XmlCoordinateType", true},
    {"XmlDBMListType", "XmlDBMListType", true},
    {"XmlDBMType", "XmlDBMType", true},
    {"XmlDecibelListType", "XmlDecibelListType", true},
    {"XmlDecibelType", "XmlDecibelType", true},
    {"XmlDegreesListType", "XmlDegreesListType", true},
    {"XmlDegreesType", "XmlDegreesType", true},
    {"XmlDeploymentAreaType", "XmlDeploymentAreaType", true},
    {"XmlDetectProbType", "XmlDetectProbType", false},
    {"XmlDeviceCategoryType", "XmlDeviceCategoryType", false},
    {"XmlDeviceListType", "XmlDeviceListType", true},
    {"XmlDeviceType", "XmlDeviceType", true},
    {"XmlDfCovType", "XmlDfCovType", false},
    {"XmlDfPrecisionType", "XmlDfPrecisionType", true},
    {"XmlDfType", "XmlDfType", true},
    {"XmlEmitterType", "XmlEmitterType", true},
    {"XmlFieldstrengthType", "XmlFieldstrengthType", true},
    {"XmlFindSitesType", "XmlFindSitesType", false},
    {"XmlFreqListType", "XmlFreqListType", true},
    {"XmlFreqThrListType", "XmlFreqThrListType", true},
    {"XmlFreqThrPairType", "XmlFreqThrPairType", true},
    {"XmlFreqType", "XmlFreqType", true},
    {"XmlGridResultType", "XmlGridResultType", false},
    {"XmlGridValuesType", "XmlGridValuesType", true},
    {"XmlInteractRespType", "XmlInteractRespType", false},
    {"XmlInterlinkPlanningType", "XmlInterlinkPlanningType", false},
    {"XmlInterlinkResultType", "XmlInterlinkResultType", false},
    {"XmlKeyType", "XmlKeyType", false},
    {"XmlLengthType", "XmlLengthType", true},
    {"XmlMapListType", "XmlMapListType", true},
    {"XmlMapType", "XmlMapType", true},
    {"XmlNameAllMultiType", "XmlNameAllMultiType", false},
    {"XmlNameAllType", "XmlNameAllType", false},
    {"XmlNumCoordType", "XmlCoordinateType", true}, // that of the coordinate
    {"XmlObjNameType", "XmlObjNameType", false},
    {"XmlOrderDef", "XmlOrderDef", false},
    {"XmlPowerType", "XmlPowerType", true},
    {"XmlPropModelEnumType", "XmlPropModelEnumType", false},
    {"XmlPropModelFSType", "XmlPropModelFSType", false},
    {"XmlPropModelHataType", "XmlPropModelHataType", false},
    {"XmlPropModelITMType", "XmlPropModelITMType", false},
    {"XmlPropModelOLOSType", "XmlPropModelOLOSType", false},
    {"XmlPropModelP1546Type", "XmlPropModelP1546Type", false},
    {"XmlPropModelP452Type", "XmlPropModelP542Type", false}, // no class of the library
    {"XmlPropModelP526Type", "XmlPropModelP526Type", false},
    {"XmlPropModelP533Type", "XmlPropModelP526Type", false}, // that of another set
    {"XmlPropModelType", "XmlPropModelType", false},
    {"XmlReceiverType", "XmlReceiverType", true},
    {"XmlReferenceType", "XmlreferenceType", false},                    // with a small r
    {"XmlResInfo_BestSensor_Type", "XmlResInfo_DetectProb_Type", true}, // that of another record
    {"XmlResInfo_Cep_Type", "XmlResInfo_Cep_Type", true},
    {"XmlResInfo_DetectProb_Type", "XmlResInfo_DetectProb_Type", true},
    {"XmlResInfo_DfCov_Type", "XmlResInfo_DfCov_Type", true},
    {"XmlResInfo_FindSites_Type", "XmlResInfo_FindSites_Type", true},
    {"XmlRespRoot", "XmlRespRoot", false},
    {"XmlResultGridType", "XmlResultGridType", false},
    {"XmlResultObjectType", "XmlResultObjectType", false},
    {"XmlRxParamType", "XmlRxParamType", true},
    {"XmlSignalPathType", "XmlSignalPathType", true},
    {"XmlSinadType", "XmlSinadType", true},
    {"XmlStationInterlinkType", "XmlStationInterlinkType", false}, // has a version, but only reading changes it
    {"XmlStationType", "XmlStationType", false},
    {"XmlTxParamType", "XmlTxParamType", true},
};

// The abstract classes of the protocol.
constexpr const char* abstractClasses[] = {"IXmlElement", "XmlElementBase"};

/// A class that the protocol does not name, and why the library has it.
struct OwnBase {
    const char* name;
    const char* reason;
};
constexpr OwnBase ownBases[] = {
    {"XmlElement", "tells syntaxError() once for all elements"},
    {"XmlVersioned", "the version of versioned elements; no element itself"},
    {"XmlComposite", "carries out the form of an element with children"},
    {"XmlVersionedComposite", "the same with a version"},
    {"XmlList", "a composite with at least one item"},
    {"XmlEnumeration", "one text out of a list"},
    {"XmlQuantity", "a number with a version"},
    {"XmlFixedUnitQuantity", "a quantity whose unit is only written"},
    {"XmlReadUnitQuantity", "a quantity whose unit is read and judged"},
    {"XmlText", "one short text: names and references"},
    {"XmlNameChoice", "names or all objects"},
    {"XmlParameterSet", "a row of optional values: the parameters of the propagation models"},
    {"XmlPlanArea", "a name and a region: deployment areas and areas of interest"},
    {"XmlSite", "a name and a position: emitters, receivers, direction finders"},
    {"XmlCoverageOrder", "sensors, areas and a grid: four of the orders"},
    {"XmlCommand", "a reference and an envelope: all commands"},
    {"XmlChoiceCommand", "a command that holds one thing out of several"},
    {"XmlResInfo", "what the result information records have in common"},
};

template <typename Array>
QStringList namesOf(const Array& table)
{
    QStringList names;
    for (const auto& row : table)
        names.append(QLatin1String(row.name));
    return names;
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

/// All classes that the library may show.
QStringList knownClasses()
{
    QStringList names = namesOf(namedClasses) + namesOf(ownBases);
    for (const char* name : abstractClasses)
        names.append(QLatin1String(name));
    return sorted(names);
}

/// The classes that the library exports, told by the build.
QStringList exportedClasses()
{
    return QStringLiteral(ARVXML_CLASSES).split(QRegularExpression(QStringLiteral("[,;]")));
}

const NamedClass& namedClass(const QString& name)
{
    for (const NamedClass& row : namedClasses) {
        if (name == QLatin1String(row.name))
            return row;
    }
    qFatal("%s is not listed", qPrintable(name));
}

// What is asked of a class at compile time

/// Each cast picks the operation with just these parameters, this result and this constness; no other converts.
template <typename T>
void checkOperations()
{
    Q_UNUSED(static_cast<void (T::*)(QXmlStreamReader&, const QString&)>(&T::processXml))
    Q_UNUSED(static_cast<void (T::*)(QXmlStreamWriter&, const QString&) const>(&T::produceXml))
    Q_UNUSED(static_cast<bool (T::*)() const>(&T::isValid))
    Q_UNUSED(static_cast<QString (T::*)()>(&T::syntaxError))
    Q_UNUSED(static_cast<void (T::*)()>(&T::reset))
    static_assert(std::has_virtual_destructor_v<T>);
    static_assert(std::is_destructible_v<T>);
}

template <typename T>
constexpr bool isPublicElement =
    std::conjunction_v<std::is_convertible<T*, IXmlElement*>, std::is_convertible<T*, XmlElementBase*>>;

template <typename T>
void checkType()
{
    static_assert(std::is_base_of_v<IXmlElement, XmlElementBase> && std::is_base_of_v<XmlElementBase, T>);
    static_assert(isPublicElement<T>);
    static_assert(!std::is_abstract_v<T>);
    checkOperations<T>();
    // The one class without a default constructor has to be told whether it is a command.
    constexpr bool isModel = std::is_same_v<T, XmlPropModelType>;
    static_assert(std::is_default_constructible_v<T> != isModel);
    static_assert(std::is_constructible_v<T, bool> == isModel);
    static_assert(std::is_copy_constructible_v<T>);
    static_assert(std::is_same_v<decltype(std::declval<T&>() = std::declval<const T&>()), T&>);
    static_assert(std::is_nothrow_move_assignable_v<T>);
}

// Each gives an abstract class one of its operations
template <typename Base>
struct Reading : Base {
    using Base::Base;
    void processXml(QXmlStreamReader&, const QString&) override { }
};
template <typename Base>
struct Writing : Base {
    using Base::Base;
    void produceXml(QXmlStreamWriter&, const QString&) const override { }
};
template <typename Base>
struct Judging : Base {
    using Base::Base;
    bool isValid() const override { return true; }
};
template <typename Base>
struct Reporting : Base {
    using Base::Base;
    QString syntaxError() override { return QString(); }
};
template <typename Base>
struct Resetting : Base {
    using Base::Base;
    void reset() override { }
};

/// For deriving only: abstract, or else with protected constructors.
template <typename T>
void checkOwnBase()
{
    static_assert(!std::is_default_constructible_v<T>);
    constexpr bool hasEveryOperation =
        std::is_same_v<T, XmlParameterSet> || std::is_same_v<T, XmlResInfo> || std::is_same_v<T, XmlVersioned>;
    static_assert(std::is_abstract_v<T> != hasEveryOperation);
    static_assert(isPublicElement<T> != std::is_same_v<T, XmlVersioned>);
    // A set with the values of another kind of set would look for values that it has not.
    static_assert(!std::is_same_v<T, XmlParameterSet> || !std::is_assignable_v<T&, const T&>);
}

/// Makes the kept problems of an element visible.
template <typename T>
class Probe : public T {
public:
    using T::addSyntaxError;
    using T::classname;
    using T::mySyntaxError;
    using T::T;
};

template <typename T>
std::unique_ptr<Probe<T>> newProbe()
{
    if constexpr (std::is_same_v<T, XmlPropModelType>)
        return std::make_unique<Probe<T>>(true);
    else
        return std::make_unique<Probe<T>>();
}

template <typename T, typename = void>
struct HasVersion : std::false_type {
};
template <typename T>
struct HasVersion<T,
                  std::void_t<decltype(std::declval<const T&>().version(), std::declval<T&>().setVersion(QString()))>>
    : std::true_type {
};

// What is asked of a class at run time

/// All that can be seen of an element. The text of its problems is kept in it, as by every syntaxError().
struct Shown {
    QString written;
    QString problems;
    bool valid;
    QString unseen;
};

Shown shown(const ElementClass& elementClass, IXmlElement& element, const QString& tag)
{
    return {ElementTest::written(element, tag), element.syntaxError(), element.isValid(), elementClass.unseen(element)};
}

/// What a sample makes of an element.
Shown shownBy(const Sample& sample)
{
    return {sample.expected(), sample.problems, sample.valid, sample.unseen};
}

#define COMPARE_SHOWN(actual, expected)                                                                                \
    do {                                                                                                               \
        const Shown actualShown = actual;                                                                              \
        const Shown expectedShown = expected;                                                                          \
        QCOMPARE(actualShown.written, expectedShown.written);                                                          \
        QCOMPARE(actualShown.problems, expectedShown.problems);                                                        \
        QCOMPARE(actualShown.valid, expectedShown.valid);                                                              \
        QCOMPARE(actualShown.unseen, expectedShown.unseen);                                                            \
    } while (false)

/// Resets the element and reads the sample into it.
void refill(IXmlElement& element, const Sample& sample)
{
    Samples::reset(element);
    ElementTest::readError(element, sample.xml);
    if (sample.finish)
        sample.finish(element);
}

/// A new response root has the time of its making; for comparisons it gets one that is known.
void fixTime(IXmlElement& element)
{
    if (auto* root = dynamic_cast<XmlRespRoot*>(&element))
        root->setTimestamp(TestValues::someTime());
}

/// What is left of a sample by reset(), in the classes in which that is not a new element.
struct Left {
    const char* className;
    const char* sampleName; ///< null for all samples of the class
    QString written;
    QString problems;
    bool valid;
    QString unseen = {};
};

const std::vector<Left>& leftByReset()
{
    using Samples::framed;
    // A range keeps its unit (and version), also as part of a record.
    const auto record = [](const char* className, const char* messageName, const char* tag) -> Left {
        return {className, nullptr,
                QStringLiteral(R"(<%1 version="1.0"><Name></Name><ResultGrid>UNDEFINED</ResultGrid>)"
                               R"(<Values version="1.0" unit="km"><Min>0</Min><Max>0</Max></Values></%1>)")
                    .arg(QLatin1String(tag)),
                framed(messageName,
                       framed("XmlObjNameType", QStringLiteral("Object name too short (min. 1)."))
                           + QStringLiteral("\nNeither AreaPolygon nor AreaRect\n")
                           + framed("XmlResultGridType", QStringLiteral("Illegal grid size."))),
                false};
    };
    static const std::vector<Left> table = {
        {"XmlGridValuesType", "a range",
         QStringLiteral(R"(<Values version="1.0" unit="km"><Min>0</Min><Max>0</Max></Values>)"), QString(), true},
        {"XmlGridValuesType", "another one",
         QStringLiteral(R"(<Values version="1.0" unit="dB"><Min>0</Min><Max>0</Max></Values>)"), QString(), true},
        record("XmlResInfo_Cep_Type", "XmlResInfo_Cep_Type", "Result_CEP"),
        record("XmlResInfo_DetectProb_Type", "XmlResInfo_DetectProb_Type", "Result_DetectProb"),
        record("XmlResInfo_DfCov_Type", "XmlResInfo_DfCov_Type", "Result_DfCoverage"),
        record("XmlResInfo_FindSites_Type", "XmlResInfo_FindSites_Type", "Result_FindSites"),
        record("XmlResInfo_BestSensor_Type", "XmlResInfo_DetectProb_Type", "Result_BestSensor"),
        // An entry loses key and value for good, until they are set or read again.
        {"XmlMapType", nullptr, QStringLiteral(R"(<Map version="1.0"/>)"), QString(), false, QStringLiteral("no key")},
        // The order of the best sensor coverage stays in its command.
        {"XmlCmdCalc", "best sensor",
         QStringLiteral(R"(<Calculate><BestSensorCov><UseRxDFs><All/></UseRxDFs><AOIs><Name>West</Name></AOIs>)"
                        R"(<ResultGrid>1000</ResultGrid><Comment>Best of all</Comment></BestSensorCov>)"
                        R"(<Reference></Reference></Calculate>)"),
         framed("XmlCmdCalc", framed("XmlreferenceType", QStringLiteral("String too short (min. 1)"))), false},
    };
    return table;
}

/// What reset() leaves of the sample, null if a new element.
const Left* leftOf(const ElementClass& elementClass, const Sample& sample)
{
    for (const Left& left : leftByReset()) {
        if (elementClass.name == QLatin1String(left.className)
            && (!left.sampleName || qstrcmp(left.sampleName, sample.name) == 0))
            return &left;
    }
    return nullptr;
}

} // namespace

class ClassesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Which classes there are

    void everyClassIsNamed()
    {
        // The samples, and so all cases below, are of all the named classes and of no others.
        QStringList sampled;
        Samples::forEachClass([&sampled](auto, const char* name) { sampled.append(QLatin1String(name)); });
        QCOMPARE(sorted(sampled), sorted(namesOf(namedClasses)));
        QCOMPARE(sampled.removeDuplicates(), 0);

        QStringList inTable;
        for (const ElementClass& elementClass : Samples::classes())
            inTable.append(elementClass.name);
        QCOMPARE(inTable.removeDuplicates(), 1); // the model definition, as a command and not
        QCOMPARE(sorted(inTable), sorted(sampled));
    }

    void everyClassIsShown()
    {
        // The classes with a forwarding header are those that the library exports.
        const QStringList exported = exportedClasses();
        QCOMPARE(sorted(exported), knownClasses());
    }

    void noOtherClassIsAnElement()
    {
        // All classes in the headers that derive anything, exported or not.
        const QDir headers(QFINDTESTDATA("../../include/arvxml"));
        const QStringList files = headers.entryList({QStringLiteral("*.h")});
        QVERIFY(files.contains(QStringLiteral("element.h")));
        const QRegularExpression definition(
            QStringLiteral(R"(^(?:class|struct)\s+(?:ARVXML_EXPORT\s+)?(\w+)(?:\s+final)?\s*(:|\{))"),
            QRegularExpression::MultilineOption);
        const QStringList others = {// Helpers, not exported: how children are held.
                                    QStringLiteral("OptionalChild"), QStringLiteral("OwnedList")};
        QStringList found;
        for (const QString& file : files) {
            QFile header(headers.filePath(file));
            QVERIFY2(header.open(QIODevice::ReadOnly), qPrintable(file));
            auto matches = definition.globalMatch(QString::fromUtf8(header.readAll()));
            while (matches.hasNext())
                found.append(matches.next().captured(1));
        }
        QCOMPARE(sorted(found), sorted(knownClasses() + others));
    }

    void forwardingHeaders()
    {
        // Each class is included above under its own name.
        QFile source(QFINDTESTDATA("classes_test.cpp"));
        QVERIFY(source.open(QIODevice::ReadOnly));
        const QRegularExpression include(QStringLiteral(R"(^#include <arvxml/(\w+)>$)"),
                                         QRegularExpression::MultilineOption);
        QStringList included = namesOf(ownBases); // these have one, too, but need not be told
        auto matches = include.globalMatch(QString::fromUtf8(source.readAll()));
        while (matches.hasNext())
            included.append(matches.next().captured(1));
        QCOMPARE(sorted(included), knownClasses());
    }

    // What a class is

    void types()
    {
        int count = 0;
        Samples::forEachClass([&count](auto type, const char*) {
            checkType<typename decltype(type)::Type>();
            ++count;
        });
        QCOMPARE(count, 77);
        QCOMPARE(int(std::size(namedClasses)), 77);
    }

    void derivedFromAnotherElement()
    {
        // A vertex is a coordinate; no other named class derives another one.
        static_assert(std::is_base_of_v<XmlCoordinateType, XmlNumCoordType>);
        static_assert(std::is_convertible_v<XmlNumCoordType*, XmlCoordinateType*>);
        int derived = 0;
        Samples::forEachClass([&derived](auto base, const char*) {
            Samples::forEachClass([&derived](auto type, const char*) {
                using Base = typename decltype(base)::Type;
                using Type = typename decltype(type)::Type;
                if (std::is_base_of_v<Base, Type> && !std::is_same_v<Base, Type>)
                    ++derived;
            });
        });
        QCOMPARE(derived, 1);
    }

    void theAbstractClasses()
    {
        checkOperations<IXmlElement>();
        checkOperations<XmlElementBase>();

        // Every operation of the interface is pure.
        static_assert(std::is_abstract_v<IXmlElement>);
        static_assert(!std::is_abstract_v<Reading<Writing<Judging<Reporting<Resetting<IXmlElement>>>>>>);
        static_assert(std::is_abstract_v<Writing<Judging<Reporting<Resetting<IXmlElement>>>>>);
        static_assert(std::is_abstract_v<Reading<Judging<Reporting<Resetting<IXmlElement>>>>>);
        static_assert(std::is_abstract_v<Reading<Writing<Reporting<Resetting<IXmlElement>>>>>);
        static_assert(std::is_abstract_v<Reading<Writing<Judging<Resetting<IXmlElement>>>>>);
        static_assert(std::is_abstract_v<Reading<Writing<Judging<Reporting<IXmlElement>>>>>);
        static_assert(sizeof(IXmlElement) == sizeof(void*)); // no data

        // The base resets, and leaves the other four.
        static_assert(std::is_abstract_v<XmlElementBase>);
        static_assert(!std::is_abstract_v<Reading<Writing<Judging<Reporting<XmlElementBase>>>>>);
        static_assert(std::is_abstract_v<Writing<Judging<Reporting<XmlElementBase>>>>);
        static_assert(std::is_abstract_v<Reading<Judging<Reporting<XmlElementBase>>>>);
        static_assert(std::is_abstract_v<Reading<Writing<Reporting<XmlElementBase>>>>);
        static_assert(std::is_abstract_v<Reading<Writing<Judging<XmlElementBase>>>>);
        static_assert(std::is_base_of_v<IXmlElement, XmlElementBase>);
        static_assert(std::is_convertible_v<XmlElementBase*, IXmlElement*>);
        static_assert(std::is_same_v<decltype(std::declval<XmlElementBase&>() = std::declval<const XmlElementBase&>()),
                                     XmlElementBase&>);

        // It is made with its class name, which is copied and assigned with the problems kept.
        using Base = Probe<Reading<Writing<Judging<Reporting<XmlElementBase>>>>>;
        static_assert(std::is_constructible_v<Base, const QString&>);
        static_assert(!std::is_default_constructible_v<Base>);
        Base original(QStringLiteral("Original"));
        original.addSyntaxError(QStringLiteral("A problem."));
        const Base copy(original);
        Base assigned(QStringLiteral("Other"));
        QCOMPARE(&(assigned = original), &assigned);
        QCOMPARE(copy.classname(), QStringLiteral("Original"));
        QCOMPARE(assigned.classname(), QStringLiteral("Original"));
        QCOMPARE(Base(copy).mySyntaxError(), Samples::framed("Original", QStringLiteral("A problem.")));
        QCOMPARE(assigned.mySyntaxError(), Samples::framed("Original", QStringLiteral("A problem.")));
        IXmlElement& element = assigned;
        element.reset();
        QCOMPARE(assigned.mySyntaxError(), QString());
    }

    void theOwnBases()
    {
        // They are for deriving only.
        checkOwnBase<XmlElement>();
        checkOwnBase<XmlVersioned>();
        checkOwnBase<XmlComposite>();
        checkOwnBase<XmlVersionedComposite>();
        checkOwnBase<XmlList>();
        checkOwnBase<XmlEnumeration>();
        checkOwnBase<XmlQuantity>();
        checkOwnBase<XmlFixedUnitQuantity>();
        checkOwnBase<XmlReadUnitQuantity>();
        checkOwnBase<XmlText>();
        checkOwnBase<XmlNameChoice>();
        checkOwnBase<XmlParameterSet>();
        checkOwnBase<XmlPlanArea>();
        checkOwnBase<XmlSite>();
        checkOwnBase<XmlCoverageOrder>();
        checkOwnBase<XmlCommand>();
        checkOwnBase<XmlChoiceCommand>();
        checkOwnBase<XmlResInfo>();
        QCOMPARE(int(std::size(ownBases)), 18);
        for (const OwnBase& base : ownBases)
            QVERIFY2(qstrlen(base.reason) > 0, base.name);
    }

    // What a new element is called

    void messageNames_data() { addClasses(); }
    void messageNames()
    {
        QFETCH(int, row);
        const ElementClass& elementClass = Samples::classes().at(size_t(row));
        const QString raised =
            QStringLiteral("in %1 (line 1, column ").arg(QLatin1String(namedClass(elementClass.name).messageName));
        // No element accepts the end tag of another one.
        const auto errorOf = [](IXmlElement& element) {
            QXmlStreamReader reader(QStringLiteral("<Tag/>"));
            reader.readNextStartElement();
            element.processXml(reader, QStringLiteral("Other"));
            return reader.errorString();
        };
        const Element element = elementClass.create();
        const QString error = errorOf(*element);
        QVERIFY2(error.startsWith(raised), qPrintable(error));
        const Element copy = elementClass.copy(*element);
        QCOMPARE(errorOf(*copy), errorOf(*element));
        QCOMPARE(elementClass.assign(*copy, *element), copy.get());
        QVERIFY(errorOf(*copy).startsWith(raised));
    }

    // Reading and writing

    void samples_data() { addSamples(); }
    void samples()
    {
        QFETCH(int, row);
        QFETCH(int, index);
        const ElementClass& elementClass = Samples::classes().at(size_t(row));
        const Sample& sample = elementClass.samples.at(size_t(index));
        QString error;
        const Element element = Samples::newFrom(elementClass, sample, &error);
        QCOMPARE(error, sample.error);
        COMPARE_SHOWN(shown(elementClass, *element, Samples::tagOf(sample)), shownBy(sample));
    }

    // Copies

    void copying_data() { addSamples(); }
    void copying()
    {
        QFETCH(int, row);
        QFETCH(int, index);
        const ElementClass& elementClass = Samples::classes().at(size_t(row));
        const Sample& sample = elementClass.samples.at(size_t(index));
        const QString tag = Samples::tagOf(sample);
        const Shown expected = shownBy(sample);

        Element original = Samples::newFrom(elementClass, sample);
        const Element copy = elementClass.copy(*original);
        QVERIFY(copy.get() != original.get());
        const Element copyOfCopy = elementClass.copy(*copy);
        const Element another = elementClass.copy(*original);
        COMPARE_SHOWN(shown(elementClass, *copy, tag), expected);
        COMPARE_SHOWN(shown(elementClass, *original, tag), expected);

        // Nothing that happens to the original, or to another copy, reaches the copy.
        for (const Sample& other : elementClass.samples) {
            refill(*original, other);
            COMPARE_SHOWN(shown(elementClass, *copy, tag), expected);
        }
        Samples::reset(*original);
        COMPARE_SHOWN(shown(elementClass, *copy, tag), expected);
        original.reset();
        COMPARE_SHOWN(shown(elementClass, *copy, tag), expected);
        Samples::reset(*another);
        COMPARE_SHOWN(shown(elementClass, *copy, tag), expected);

        // A copy is an element like any other.
        refill(*another, sample);
        COMPARE_SHOWN(shown(elementClass, *another, tag), expected);
        Samples::reset(*copy);
        COMPARE_SHOWN(shown(elementClass, *copyOfCopy, tag), expected);
    }

    void assigning_data() { addSamples(); }
    void assigning()
    {
        QFETCH(int, row);
        QFETCH(int, index);
        const ElementClass& elementClass = Samples::classes().at(size_t(row));
        const Sample& sample = elementClass.samples.at(size_t(index));
        const QString tag = Samples::tagOf(sample);
        const Shown expected = shownBy(sample);

        // To a new element.
        {
            Element source = Samples::newFrom(elementClass, sample);
            const Element target = elementClass.create();
            QCOMPARE(elementClass.assign(*target, *source), target.get());
            COMPARE_SHOWN(shown(elementClass, *target, tag), expected);
            COMPARE_SHOWN(shown(elementClass, *source, tag), expected);
            source.reset();
            COMPARE_SHOWN(shown(elementClass, *target, tag), expected);
        }
        // To one that holds something else, or the same.
        for (const Sample& held : elementClass.samples) {
            Element source = Samples::newFrom(elementClass, sample);
            const Element target = Samples::newFrom(elementClass, held);
            QCOMPARE(elementClass.assign(*target, *source), target.get());
            COMPARE_SHOWN(shown(elementClass, *target, tag), expected);
            refill(*source, held);
            COMPARE_SHOWN(shown(elementClass, *target, tag), expected);
            Samples::reset(*source);
            COMPARE_SHOWN(shown(elementClass, *target, tag), expected);
            source.reset();
            COMPARE_SHOWN(shown(elementClass, *target, tag), expected);
        }
        // A new element to one that holds something.
        {
            const Element source = elementClass.create();
            fixTime(*source);
            const Element target = Samples::newFrom(elementClass, sample);
            elementClass.assign(*target, *source);
            COMPARE_SHOWN(shown(elementClass, *target, tag), shown(elementClass, *source, tag));
        }
        // To itself.
        {
            const Element element = Samples::newFrom(elementClass, sample);
            QCOMPARE(elementClass.assign(*element, *element), element.get());
            COMPARE_SHOWN(shown(elementClass, *element, tag), expected);
        }
    }

    void copiesOfNewElements_data() { addClasses(); }
    void copiesOfNewElements()
    {
        QFETCH(int, row);
        const ElementClass& elementClass = Samples::classes().at(size_t(row));
        const QString tag = QStringLiteral("Tag");
        const Element element = elementClass.create();
        fixTime(*element);
        const Shown expected = shown(elementClass, *element, tag);
        const Element copy = elementClass.copy(*element);
        COMPARE_SHOWN(shown(elementClass, *copy, tag), expected);
        const Element assigned = elementClass.create();
        elementClass.assign(*assigned, *copy);
        COMPARE_SHOWN(shown(elementClass, *assigned, tag), expected);
        elementClass.assign(*assigned, *assigned);
        COMPARE_SHOWN(shown(elementClass, *assigned, tag), expected);

        // What the copy gets to hold, it holds alone.
        const Sample& sample = elementClass.samples.front();
        refill(*copy, sample);
        COMPARE_SHOWN(shown(elementClass, *copy, Samples::tagOf(sample)), shownBy(sample));
        COMPARE_SHOWN(shown(elementClass, *element, tag), expected);
    }

    // The flag of the model definition is no part of what is read: it shows by the reference.
    void copiesOfTheCommandFlag()
    {
        const QString asCommand = QStringLiteral("<Model><Reference></Reference></Model>");
        const QString asDefinition = QStringLiteral("<Model/>");
        const XmlPropModelType command(true);
        const XmlPropModelType definition(false);
        QCOMPARE(ElementTest::written(XmlPropModelType(command), QStringLiteral("Model")), asCommand);
        QCOMPARE(ElementTest::written(XmlPropModelType(definition), QStringLiteral("Model")), asDefinition);
        XmlPropModelType model(command);
        model = definition;
        QCOMPARE(ElementTest::written(model, QStringLiteral("Model")), asDefinition);
        model.reset();
        QCOMPARE(ElementTest::written(model, QStringLiteral("Model")), asDefinition);
        model = command;
        QCOMPARE(ElementTest::written(model, QStringLiteral("Model")), asCommand);
        model.reset();
        QCOMPARE(ElementTest::written(model, QStringLiteral("Model")), asCommand);
    }

    // The problems found last are kept in the element, copied with it, and forgotten by reset().
    void keptProblems()
    {
        Samples::forEachClass([](auto type, const char* name) {
            using T = typename decltype(type)::Type;
            const QString kept =
                Samples::framed(namedClass(QLatin1String(name)).messageName, QStringLiteral("One.\nTwo."));
            const auto original = newProbe<T>();
            QCOMPARE(original->mySyntaxError(), QString());
            original->addSyntaxError(QStringLiteral("One."));
            original->addSyntaxError(QString());
            original->addSyntaxError(QStringLiteral("Two."));
            Probe<T> copy(*original);
            QVERIFY2(copy.mySyntaxError() == kept, name);
            const auto assigned = newProbe<T>();
            assigned->addSyntaxError(QStringLiteral("Other."));
            *assigned = *original;
            QVERIFY2(assigned->mySyntaxError() == kept, name);
            original->reset();
            // One class leaves it.
            constexpr bool isLeft = std::is_same_v<T, XmlPropModelOLOSType>;
            QVERIFY2(original->mySyntaxError() == (isLeft ? kept : QString()), name);
            QVERIFY2(copy.mySyntaxError() == kept, name);
        });
    }

    // Versions

    void versions()
    {
        int versioned = 0;
        Samples::forEachClass([&versioned](auto type, const char* name) {
            using T = typename decltype(type)::Type;
            QVERIFY2(HasVersion<T>::value == namedClass(QLatin1String(name)).hasVersion, name);
            if constexpr (HasVersion<T>::value) {
                static_assert(std::is_same_v<decltype(std::declval<const T&>().version()), QString>);
                ++versioned;
                const auto two = QStringLiteral("2.0");
                T element;
                QVERIFY2(element.version() == QLatin1String("1.0"), name);
                element.setVersion(two);
                const T copy(element);
                T assigned;
                assigned = element;
                // A range keeps its version; the others have 1.0 again.
                constexpr bool isKept = std::is_same_v<T, XmlGridValuesType>;
                element.reset();
                QVERIFY2(element.version() == (isKept ? two : QStringLiteral("1.0")), name);
                QVERIFY2(copy.version() == two, name);
                QVERIFY2(assigned.version() == two && !assigned.isValid(), name);
                QVERIFY2(assigned.syntaxError().contains(QLatin1String("\nVersion \"2.0\" not supported\n")), name);
                QVERIFY2(ElementTest::written(copy, two).contains(QLatin1String(" version=\"2.0\"")), name);
            }
        });
        QCOMPARE(versioned, 39);
    }

    // Reset

    void resetting_data() { addSamples(); }
    void resetting()
    {
        QFETCH(int, row);
        QFETCH(int, index);
        const ElementClass& elementClass = Samples::classes().at(size_t(row));
        const Sample& sample = elementClass.samples.at(size_t(index));
        const QString tag = Samples::tagOf(sample);
        const Element fresh = elementClass.create();
        fixTime(*fresh);
        Shown expected = shown(elementClass, *fresh, tag);
        if (const Left* left = leftOf(elementClass, sample)) {
            const Shown kept = {left->written, left->problems, left->valid, left->unseen};
            QVERIFY(kept.written != expected.written); // otherwise it is no exception
            expected = kept;
        }

        const Element element = Samples::newFrom(elementClass, sample);
        COMPARE_SHOWN(shown(elementClass, *element, tag), shownBy(sample));
        Samples::reset(*element);
        fixTime(*element);
        COMPARE_SHOWN(shown(elementClass, *element, tag), expected);
        Samples::reset(*element);
        fixTime(*element);
        COMPARE_SHOWN(shown(elementClass, *element, tag), expected);

        // What is left behind is a usable element.
        QCOMPARE(ElementTest::readError(*element, sample.xml), sample.error);
        if (sample.finish)
            sample.finish(*element);
        COMPARE_SHOWN(shown(elementClass, *element, tag), shownBy(sample));
    }

    void everyExceptionOfResetIsUsed()
    {
        for (const Left& left : leftByReset()) {
            bool isUsed = false;
            for (const ElementClass& elementClass : Samples::classes()) {
                for (const Sample& sample : elementClass.samples)
                    isUsed = isUsed || leftOf(elementClass, sample) == &left;
            }
            QVERIFY2(isUsed, left.className);
        }
    }

    void resettingTheTimeOfAResponse()
    {
        XmlRespRoot root;
        root.setTimestamp(TestValues::someTime());
        const QDateTime before = QDateTime::currentDateTime();
        root.reset();
        QVERIFY(root.timestamp() >= before);
        QVERIFY(root.timestamp() <= QDateTime::currentDateTime());
    }

    // Values that no document shows
    void resettingUnseenValues()
    {
        XmlPropModelP1546Type parameters;
        parameters.setTime(7.0);
        parameters.setPath(XmlPropModelP1546Type::PathLand);
        parameters.reset();
        QVERIFY(!parameters.hasTime());
        QCOMPARE(parameters.time(), 50.0);
        QCOMPARE(parameters.path(), XmlPropModelP1546Type::PathUndefined);
    }

private:
    /// A row for each class.
    static void addClasses()
    {
        QTest::addColumn<int>("row");
        int row = 0;
        for (const ElementClass& elementClass : Samples::classes())
            QTest::newRow(qPrintable(elementClass.title())) << row++;
    }

    /// A row for each sample of each class.
    static void addSamples()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("index");
        int row = 0;
        for (const ElementClass& elementClass : Samples::classes()) {
            int index = 0;
            for (const Sample& sample : elementClass.samples)
                QTest::addRow("%s: %s", qPrintable(elementClass.title()), sample.name) << row << index++;
            ++row;
        }
    }
};

QTEST_APPLESS_MAIN(ClassesTest)
#include "classes_test.moc"
