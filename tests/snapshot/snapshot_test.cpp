#include "objects/gatedchild.h"
#include "support/elementtest.h"
#include "support/responsetest.h"
#include "support/values.h"

#include <arvxml/snapshot.h>

#include <type_traits>
#include <utility>

using namespace ArvXml;
using namespace ResponseTest;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;
using ObjectTest::block;
using ObjectTest::words;
using TestValues::text;

namespace {

using Request = XmlArvBtType;

static_assert(std::is_base_of_v<XmlElementBase, Request>);
static_assert(std::is_same_v<decltype(std::declval<const Request&>().version()), QString>);
static_assert(std::is_same_v<std::decay_t<decltype(std::declval<const Request&>().screenshotPath())>, QString>);
static_assert(ObjectTest::HasSetVersion<Request>::value && !ObjectTest::ShowsSupportsVersion<Request>::value);

/// Shows the error text that is kept in a request.
struct Probe : Request {
    using XmlElementBase::mySyntaxError;
};

/// A kind of object that is shown, and how to deal with the objects of a request without knowing it.
struct Kind {
    QString tag;
    const char* className;
    QString rest; ///< what follows the name
    void (*addRead)(Request& request, const QString& xml, const QString& version);
    void (*addOwn)(Request& request); ///< the first one that it holds, again
    int (*count)(const Request& request);
    QVector<IXmlElement*> (*objects)(const Request& request);
    QStringList (*names)(const Request& request);
    void (*setVersion)(const Request& request, int index, const QString& version);
    bool (*listsAreCopies)(const Request& request);

    /// An object of this name as it is read and written.
    QString xml(const QString& name, const QString& version = QStringLiteral("1.0")) const
    {
        return QStringLiteral("<%1 version=\"").arg(tag) + version + QStringLiteral("\"><Name>") + name
            + QStringLiteral("</Name>") + rest + QStringLiteral("</%1>").arg(tag);
    }

    void add(Request& request, const char* name, const char* version = "1.0") const
    {
        addRead(request, xml(text(name)), text(version));
    }
};

template <typename T, auto Add, auto Count, auto Get>
Kind kindOf(const char* tag, const char* className, const QString& rest)
{
    static_assert(std::is_same_v<decltype(Add), void (Request::*)(const T&)>);
    static_assert(std::is_same_v<decltype((std::declval<const Request&>().*Count)()), int>);
    static_assert(std::is_same_v<decltype((std::declval<const Request&>().*Get)()), const QList<T*>>);

    Kind kind = {};
    kind.tag = text(tag);
    kind.className = className;
    kind.rest = rest;
    kind.addRead = [](Request& request, const QString& xml, const QString& version) {
        T object = readFrom<T>(xml);
        object.setVersion(version);
        (request.*Add)(object);
        object.reset(); // the caller's own
    };
    kind.addOwn = [](Request& request) { (request.*Add)(*(request.*Get)().first()); };
    kind.count = [](const Request& request) { return (request.*Count)(); };
    kind.objects = [](const Request& request) {
        QVector<IXmlElement*> objects;
        for (T* object : (request.*Get)())
            objects.append(object);
        return objects;
    };
    kind.names = [](const Request& request) {
        QStringList names;
        for (const T* object : (request.*Get)())
            names.append(object->objName()->objName());
        return names;
    };
    kind.setVersion = [](const Request& request, int index, const QString& version) {
        (request.*Get)().at(index)->setVersion(version);
    };
    kind.listsAreCopies = [](const Request& request) {
        const QList<T*> before = (request.*Get)();
        QList<T*> list = before;
        list.clear();
        list.append(nullptr);
        return (request.*Get)() == before;
    };
    return kind;
}

const QString rectangle = QStringLiteral("<AreaRect version=\"1.0\"><UpperLeft version=\"1.0\">"
                                         "<Longitude>8.000000</Longitude><Latitude>51.000000</Latitude></UpperLeft>"
                                         "<LowerRight version=\"1.0\"><Longitude>9.000000</Longitude>"
                                         "<Latitude>50.000000</Latitude></LowerRight></AreaRect>");
const QString position = QStringLiteral("<Position version=\"1.0\"><Longitude>10.500000</Longitude>"
                                        "<Latitude>50.000000</Latitude></Position>");
const QString frequency = QStringLiteral("<Frequency version=\"1.0\" unit=\"MHz\">430.000000</Frequency>");
const QString txPower = QStringLiteral("<TxPower version=\"1.0\" unit=\"W\">10.000000000000000</TxPower>");
const QString height = QStringLiteral("<AntennaHeight version=\"1.0\" unit=\"m\">7</AntennaHeight>");
const QString threshold = QStringLiteral("<RxThreshold version=\"1.0\" unit=\"dBm\">-80.000000000000000</RxThreshold>");
const QString txParameter = QStringLiteral("<TxParameter version=\"1.0\">%1%2%3"
                                           "<Bandwidth version=\"1.0\" unit=\"kHz\">25</Bandwidth></TxParameter>")
                                .arg(frequency, txPower, height);
const QString rxParameter = QStringLiteral("<RxParameter version=\"1.0\">%1%2</RxParameter>").arg(height, threshold);
const QString precision = QStringLiteral("<DFprecision version=\"1.0\" unit=\"\u00B0\">3</DFprecision>");
const QString result = rectangle
    + QStringLiteral("<ResultGrid>100</ResultGrid>"
                     "<Values version=\"1.0\" unit=\"km\"><Min>0.2</Min><Max>3</Max></Values>");

/// The kinds in their order.
const QVector<Kind>& kinds()
{
    static const QVector<Kind> all = {
        kindOf<XmlDeploymentAreaType, &Request::addDeployment, &Request::hasDeployments, &Request::deployments>(
            "DeploymentArea", "XmlDeploymentAreaType", rectangle + height + threshold + frequency + txPower),
        kindOf<XmlAoiType, &Request::addAoi, &Request::hasAois, &Request::aois>("AreaOfInterest", "XmlAoiType",
                                                                                rectangle + txParameter),
        kindOf<XmlEmitterType, &Request::addKnownEmitter, &Request::hasKnownEmitters, &Request::knownEmitters>(
            "KnownEmitter", "XmlEmitterType", position + txParameter),
        kindOf<XmlReceiverType, &Request::addReceiver, &Request::hasReceivers, &Request::receivers>(
            "Receiver", "XmlReceiverType", position + rxParameter),
        kindOf<XmlDfType, &Request::addDf, &Request::hasDfs, &Request::dfs>("DirectionFinder", "XmlDfType",
                                                                            position + rxParameter + precision),
        kindOf<XmlResInfo_FindSites_Type, &Request::addResFindSite, &Request::hasResFindSite, &Request::resFindSite>(
            "Result_FindSites", "XmlResInfo_FindSites_Type", result),
        kindOf<XmlResInfo_Cep_Type, &Request::addResCep, &Request::hasResCep, &Request::resCep>(
            "Result_CEP", "XmlResInfo_Cep_Type", result),
        kindOf<XmlResInfo_DetectProb_Type, &Request::addResDetectProb, &Request::hasResDetectProb,
               &Request::resDetectProb>("Result_DetectProb", "XmlResInfo_DetectProb_Type", result),
        kindOf<XmlResInfo_DfCov_Type, &Request::addResDfCov, &Request::hasResDfCov, &Request::resDfCov>(
            "Result_DfCoverage", "XmlResInfo_DfCov_Type", result),
    };
    return all;
}

/// The tags of the objects in the order in which they may come.
const char inOrder[] = "DeploymentArea AreaOfInterest KnownEmitter Receiver DirectionFinder "
                       "Result_FindSites Result_CEP Result_DetectProb Result_DfCoverage";

/// A row for each kind.
void addKinds()
{
    QTest::addColumn<const Kind*>("kind");
    for (const Kind& kind : kinds())
        QTest::newRow(qPrintable(kind.tag)) << &kind;
}

/// The objects held, by their tags and names.
QString held(const Request& request)
{
    QStringList objects;
    for (const Kind& kind : kinds()) {
        const QStringList names = kind.names(request);
        for (const QString& name : names)
            objects.append(kind.tag + QLatin1Char(':') + name);
    }
    return objects.join(QLatin1Char(' '));
}

QString wire(const Request& request)
{
    return written(request, QStringLiteral("S"));
}

/// A document with these displayed objects.
QString document(const QString& objects)
{
    return QStringLiteral("<S version=\"1.0\"><ScreenshotPath>p</ScreenshotPath><DisplayedObjects>") + objects
        + QStringLiteral("</DisplayedObjects></S>");
}

/// A request with a path and two objects of each kind, "A" and "B".
Request fullRequest()
{
    Request request;
    request.setScreenshotPath(QStringLiteral("p"));
    for (const Kind& kind : kinds()) {
        kind.add(request, "A");
        kind.add(request, "B");
    }
    return request;
}

const char allHeld[] = "DeploymentArea:A DeploymentArea:B AreaOfInterest:A AreaOfInterest:B KnownEmitter:A "
                       "KnownEmitter:B Receiver:A Receiver:B DirectionFinder:A DirectionFinder:B Result_FindSites:A "
                       "Result_FindSites:B Result_CEP:A Result_CEP:B Result_DetectProb:A Result_DetectProb:B "
                       "Result_DfCoverage:A Result_DfCoverage:B";

/// Two objects of each kind as they are written.
QString allXml()
{
    QString xml;
    for (const QString& tag : words(inOrder)) {
        for (const Kind& kind : kinds()) {
            if (kind.tag == tag)
                xml += kind.xml(QStringLiteral("A")) + kind.xml(QStringLiteral("B"));
        }
    }
    return xml;
}

} // namespace

Q_DECLARE_METATYPE(const Kind*)

class SnapshotTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newRequest();
    void texts();
    void adding_data() { addKinds(); }
    void adding();
    void threeReceivers();
    void copies();
    void assignment_data() { addKinds(); }
    void assignment();
    void assignmentOfTexts();
    void errorTextIsCopiedAndReset();
    void written_data();
    void written();
    void writtenInOrder();
    void readBack();
    void readTwice();
    void order_data();
    void order();
    void path_data();
    void path();
    void startTags_data();
    void startTags();
    void endTags_data();
    void endTags();
    void otherTokensAreSkipped();
    void tagOfAChild_data();
    void tagOfAChild();
    void tagFromTheRequest();
    void nothingBehindIsTouched();
    void wrongPosition_data();
    void wrongPosition();
    void versionsRead_data();
    void versionsRead();
    void objectsThatFail_data() { addKinds(); }
    void objectsThatFail();
    void whiteSpaceInValues_data();
    void whiteSpaceInValues();
    void readingIntoUsedRequest();
    void useAfterFailedRead();
    void notWellFormed_data();
    void notWellFormed();
    void checkedTexts_data();
    void checkedTexts();
    void checkedObjects_data() { addKinds(); }
    void checkedObjects();
    void everythingWrong();
    void reset();
};

void SnapshotTest::newRequest()
{
    Request request;
    QCOMPARE(request.version(), QStringLiteral("1.0"));
    QCOMPARE(request.screenshotPath(), QString());
    for (const Kind& kind : kinds()) {
        QCOMPARE(kind.count(request), 0);
        QVERIFY(kind.objects(request).isEmpty());
    }
    QCOMPARE(wire(request), text("<S version=\"1.0\"><ScreenshotPath></ScreenshotPath><DisplayedObjects/></S>"));
    QVERIFY(!request.isValid());
    const QString problems = text("+++ in XmlArvBtType Begin:\n"
                                  "Screen shot path is empty\n"
                                  "--- in XmlArvBtType End");
    QCOMPARE(request.syntaxError(), problems);
    QCOMPARE(request.syntaxError(), problems); // not added up
}

void SnapshotTest::texts()
{
    Request request;
    request.setScreenshotPath(QStringLiteral("/tmp/plan.png"));
    request.setVersion(QStringLiteral("any"));
    QCOMPARE(request.screenshotPath(), QStringLiteral("/tmp/plan.png"));
    QCOMPARE(request.version(), QStringLiteral("any"));
    request.setScreenshotPath(QString());
    request.setVersion(QString());
    QCOMPARE(request.screenshotPath(), QString());
    QCOMPARE(request.version(), QString());
}

void SnapshotTest::adding()
{
    QFETCH(const Kind*, kind);

    Request request;
    kind->add(request, "A");
    QCOMPARE(kind->count(request), 1);
    IXmlElement* const first = kind->objects(request).first();
    QVERIFY(first != nullptr);
    kind->add(request, "B");
    kind->add(request, "A"); // the same name again is another object
    QCOMPARE(kind->count(request), 3);
    QCOMPARE(kind->objects(request).size(), 3);
    QCOMPARE(kind->objects(request).first(), first);
    QCOMPARE(held(request), QStringLiteral("%1:A %1:B %1:A").arg(kind->tag)); // and none of another kind

    // One of its own is copied, too.
    kind->addOwn(request);
    QCOMPARE(kind->count(request), 4);
    QCOMPARE(kind->objects(request).first(), first);
    QVERIFY(kind->objects(request).last() != first);
    QCOMPARE(ElementTest::written(*kind->objects(request).last(), kind->tag), kind->xml(QStringLiteral("A")));
    for (int i = 0; i < 100; ++i)
        kind->addOwn(request);
    QCOMPARE(kind->count(request), 104);
    QCOMPARE(kind->objects(request).first(), first);

    // The list that is handed out is a copy, the objects are not.
    QVERIFY(kind->listsAreCopies(request));
    kind->setVersion(request, 1, QStringLiteral("3.0"));
    QCOMPARE(ElementTest::written(*kind->objects(request).at(1), kind->tag),
             kind->xml(QStringLiteral("B"), QStringLiteral("3.0")));
}

void SnapshotTest::threeReceivers()
{
    Request request;
    for (int i = 0; i < 3; ++i)
        request.addReceiver(XmlReceiverType());
    QCOMPARE(request.hasReceivers(), 3);
    QCOMPARE(request.receivers().size(), 3);
    request.addReceiver(*request.receivers().first());
    QCOMPARE(request.hasReceivers(), 4);
    QCOMPARE(request.hasDfs(), 0);
}

void SnapshotTest::copies()
{
    Request original = fullRequest();
    original.setVersion(QStringLiteral("2.0"));
    const Request copy(original);
    for (const Kind& kind : kinds()) {
        QCOMPARE(kind.count(copy), 2);
        const QVector<IXmlElement*> originals = kind.objects(original);
        for (const IXmlElement* object : kind.objects(copy))
            QVERIFY(!originals.contains(const_cast<IXmlElement*>(object)));
        kind.setVersion(original, 0, QStringLiteral("changed"));
    }
    original.reset();
    QCOMPARE(held(copy), text(allHeld));
    QCOMPARE(wire(copy),
             text("<S version=\"2.0\"><ScreenshotPath>p</ScreenshotPath><DisplayedObjects>") + allXml()
                 + text("</DisplayedObjects></S>"));

    const Request copyOfEmpty(original);
    QCOMPARE(wire(copyOfEmpty), text("<S version=\"1.0\"><ScreenshotPath></ScreenshotPath><DisplayedObjects/></S>"));
}

void SnapshotTest::assignment()
{
    QFETCH(const Kind*, kind);

    const char* const sourceNames[] = {"A", "B"};
    const char* const targetNames[] = {"X", "Y", "Z"};
    for (int sources = 0; sources <= 2; ++sources) {
        for (int targets = 0; targets <= 3; ++targets) {
            Request source;
            Request target;
            QString expected;
            for (int i = 0; i < sources; ++i) {
                kind->add(source, sourceNames[i]);
                expected += kind->xml(text(sourceNames[i]));
            }
            for (int i = 0; i < targets; ++i)
                kind->add(target, targetNames[i]);
            target = source;
            QCOMPARE(kind->count(source), sources);
            QCOMPARE(kind->count(target), sources);
            if (sources > 0) {
                QVERIFY(!kind->objects(source).contains(kind->objects(target).first()));
                kind->setVersion(source, 0, QStringLiteral("changed"));
            }
            source.reset();
            const Request& self = target;
            target = self;
            QCOMPARE(wire(target),
                     text("<S version=\"1.0\"><ScreenshotPath></ScreenshotPath>")
                         + (sources == 0 ? text("<DisplayedObjects/>")
                                         : text("<DisplayedObjects>") + expected + text("</DisplayedObjects>"))
                         + text("</S>"));
        }
    }

    // Everything else is replaced, too.
    Request one;
    kind->add(one, "C");
    Request all = fullRequest();
    all = one;
    QCOMPARE(held(all), kind->tag + QStringLiteral(":C"));
    one = fullRequest();
    QCOMPARE(held(one), text(allHeld));
}

void SnapshotTest::assignmentOfTexts()
{
    for (const char* sourcePath : {"", "source"}) {
        for (const char* targetPath : {"", "target"}) {
            Request source;
            source.setScreenshotPath(text(sourcePath));
            source.setVersion(QStringLiteral("2.0"));
            Request target;
            target.setScreenshotPath(text(targetPath));
            target = source;
            source.reset();
            QCOMPARE(target.screenshotPath(), text(sourcePath));
            QCOMPARE(target.version(), QStringLiteral("2.0"));
            const Request& self = target;
            target = self;
            QCOMPARE(target.screenshotPath(), text(sourcePath));
            QCOMPARE(target.version(), QStringLiteral("2.0"));
        }
    }
}

void SnapshotTest::errorTextIsCopiedAndReset()
{
    Probe source;
    source.syntaxError();
    checkKeptErrorText(source,
                       text("+++ in XmlArvBtType Begin:\n"
                            "Screen shot path is empty\n"
                            "--- in XmlArvBtType End"));
}

void SnapshotTest::written_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("xml");

    QTest::newRow("a path without objects")
        << text("/tmp/plan.png") << text("1.0")
        << text("<Any version=\"1.0\"><ScreenshotPath>/tmp/plan.png</ScreenshotPath><DisplayedObjects/></Any>");
    QTest::newRow("an empty path is written") << QString() << text("1.0")
                                              << text("<Any version=\"1.0\"><ScreenshotPath></ScreenshotPath>"
                                                      "<DisplayedObjects/></Any>");
    QTest::newRow("a path is escaped") << text("a < b & \"c\" ") << text("1.0")
                                       << text("<Any version=\"1.0\"><ScreenshotPath>a &lt; b &amp; &quot;c&quot; "
                                               "</ScreenshotPath><DisplayedObjects/></Any>");
    QTest::newRow("another version") << text("p") << text("2.0")
                                     << text("<Any version=\"2.0\"><ScreenshotPath>p</ScreenshotPath>"
                                             "<DisplayedObjects/></Any>");
    QTest::newRow("an empty version") << text("p") << QString()
                                      << text("<Any version=\"\"><ScreenshotPath>p</ScreenshotPath>"
                                              "<DisplayedObjects/></Any>");
}

void SnapshotTest::written()
{
    QFETCH(QString, path);
    QFETCH(QString, version);
    QFETCH(QString, xml);

    Request request;
    request.setScreenshotPath(path);
    request.setVersion(version);
    QCOMPARE(ElementTest::written(request, QStringLiteral("Any")), xml);
}

void SnapshotTest::writtenInOrder()
{
    // The kinds come in their order, each in the order in which its objects were added.
    Request request;
    request.setScreenshotPath(QStringLiteral("p"));
    for (const char* name : {"A", "B"}) {
        for (int i = int(kinds().size()) - 1; i >= 0; --i)
            kinds().at(i).add(request, name);
    }
    QCOMPARE(held(request), text(allHeld));
    QCOMPARE(wire(request), document(allXml()));

    // What is not valid is written, too.
    for (const Kind& kind : kinds()) {
        Request wrong;
        wrong.setScreenshotPath(QStringLiteral("p"));
        kind.add(wrong, "A", "2.0");
        kind.add(wrong, "B");
        QCOMPARE(wire(wrong),
                 document(kind.xml(QStringLiteral("A"), QStringLiteral("2.0")) + kind.xml(QStringLiteral("B"))));
    }
}

void SnapshotTest::readBack()
{
    Request request;
    QCOMPARE(readError(request, document(allXml())), QString());
    QCOMPARE(request.version(), QStringLiteral("1.0"));
    QCOMPARE(request.screenshotPath(), QStringLiteral("p"));
    QCOMPARE(held(request), text(allHeld));
    QCOMPARE(wire(request), document(allXml()));
    QVERIFY(request.isValid());
    QCOMPARE(request.syntaxError(), QString());

    // An empty path is written, but not read.
    Request withoutPath = request;
    withoutPath.setScreenshotPath(QString());
    QCOMPARE(withoutPath.syntaxError(),
             text("+++ in XmlArvBtType Begin:\nScreen shot path is empty\n--- in XmlArvBtType End"));
    Request again;
    QCOMPARE(readError(again, wire(withoutPath)),
             text("in XmlArvBtType (line 1, column 68): Unexpected token \"StartElement\"."));
    QCOMPARE(held(again), QString());
}

void SnapshotTest::readTwice()
{
    Request request;
    QCOMPARE(readError(request, document(allXml())), QString());
    QVector<QVector<IXmlElement*>> before;
    for (const Kind& kind : kinds())
        before.append(kind.objects(request));
    QCOMPARE(readError(request, document(allXml())), QString());
    for (int i = 0; i < kinds().size(); ++i) {
        QCOMPARE(kinds().at(i).count(request), 4);
        QCOMPARE(kinds().at(i).names(request), words("A B A B"));
        QCOMPARE(kinds().at(i).objects(request).mid(0, 2), before.at(i));
    }
    QVERIFY(request.isValid());
}

void SnapshotTest::order_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");

    for (const QString& first : words(inOrder)) {
        for (const QString& second : words(inOrder)) {
            QTest::addRow("%s, then %s", qPrintable(first), qPrintable(second)) << first << second;
        }
    }
}

void SnapshotTest::order()
{
    QFETCH(QString, first);
    QFETCH(QString, second);

    const QStringList tags = words(inOrder);
    // Alone, and with any third behind them; each on a line of its own
    QStringList thirds = tags;
    thirds.append(QString());
    for (const QString& third : std::as_const(thirds)) {
        QStringList sequence = {first, second};
        if (!third.isEmpty())
            sequence.append(third);

        QString objects;
        QString error;
        QStringList read;
        int last = 0;
        for (int i = 0; i < sequence.size(); ++i) {
            const int place = int(tags.indexOf(sequence.at(i)));
            const QString name = QString::number(i);
            objects += QLatin1Char('\n') + kinds().at(place).xml(name);
            if (error.isEmpty() && place < last) {
                const qint64 column = QStringLiteral("<%1 version=\"1.0\">").arg(sequence.at(i)).size();
                error = QStringLiteral("in XmlArvBtType (line %1, column %2): Unexpected token \"StartElement\".")
                            .arg(QString::number(i + 2), QString::number(column));
            } else if (error.isEmpty()) {
                read.append(sequence.at(i) + QLatin1Char(':') + name);
                last = place;
            }
        }
        Request request;
        QCOMPARE(readError(request, document(objects + QLatin1Char('\n'))), error);
        QCOMPARE(held(request), read.join(QLatin1Char(' ')));
    }
}

void SnapshotTest::path_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("path"); // null where none is read

    const auto row = [](const char* name, const char* xml, const char* path) {
        QTest::newRow(name) << text(xml) << (path ? text(path) : QString());
    };
    row("none", "", nullptr);
    row("text where no path is", "/tmp/plan.png", nullptr);
    row("an empty element", "<ScreenshotPath/>", nullptr);
    row("a start and an end", "<ScreenshotPath></ScreenshotPath>", nullptr);
    row("a comment", "<ScreenshotPath><!-- p --></ScreenshotPath>", nullptr);
    row("a processing instruction", "<ScreenshotPath><?pi p?></ScreenshotPath>", nullptr);
    row("text about an empty element", "p<ScreenshotPath/>p", nullptr);
    row("two empty elements", "<ScreenshotPath/><ScreenshotPath></ScreenshotPath>", nullptr);
    // It is text, though it says nothing.
    row("empty unparsed text", "<ScreenshotPath><![CDATA[]]></ScreenshotPath>", "");
    row("empty unparsed text behind text", "<ScreenshotPath>a<![CDATA[]]></ScreenshotPath>", "");
    row("a blank", "<ScreenshotPath> </ScreenshotPath>", " ");
    row("white space", "<ScreenshotPath>\n\t\n</ScreenshotPath>", "\n\t\n");
    row("text", "<ScreenshotPath>/tmp/plan.png</ScreenshotPath>", "/tmp/plan.png");
    row("text with blanks", "<ScreenshotPath> p q </ScreenshotPath>", " p q ");
    row("text with entities", "<ScreenshotPath>a &lt; b &amp; c&#33;</ScreenshotPath>", "a < b & c!");
    row("unparsed text", "<ScreenshotPath><![CDATA[<p>&amp;]]></ScreenshotPath>", "<p>&amp;");
    row("text cut by a comment", "<ScreenshotPath>a<!-- c -->b</ScreenshotPath>", "b");
    row("text cut twice", "<ScreenshotPath>a<!-- c -->b<?pi d?>c</ScreenshotPath>", "c");
    row("text before a comment", "<ScreenshotPath>a<!-- c --></ScreenshotPath>", "a");
    row("text behind a comment", "<ScreenshotPath><!-- c -->b</ScreenshotPath>", "b");
    row("white space behind a comment", "<ScreenshotPath>a<!-- c -->\n</ScreenshotPath>", "\n");
    row("text cut by unparsed text", "<ScreenshotPath>a<![CDATA[b]]></ScreenshotPath>", "b");
    row("text behind an empty element", "<ScreenshotPath/>q<ScreenshotPath>p</ScreenshotPath>", "p");
    row("text behind the element", "<ScreenshotPath>p</ScreenshotPath>q", "p");
    row("attributes", "<ScreenshotPath version=\"2.0\">p</ScreenshotPath>", "p");
}

void SnapshotTest::path()
{
    QFETCH(QString, xml);
    QFETCH(QString, path);

    for (const char* before : {"", "old"}) {
        Request request;
        request.setScreenshotPath(text(before));
        const Refusal refused = refusal(QStringLiteral("<S>%1\n<DisplayedObjects>|\n</DisplayedObjects></S>").arg(xml),
                                        text("XmlArvBtType"), text("Unexpected token \"StartElement\""));
        QCOMPARE(readError(request, refused.xml), path.isNull() ? refused.error : QString());
        QCOMPARE(request.screenshotPath(), path.isNull() ? text(before) : path);
        QCOMPARE(request.isValid(), !request.screenshotPath().isEmpty());
    }
}

void SnapshotTest::startTags_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<bool>("accepted");

    const QString receiver = kinds().at(3).xml(QStringLiteral("R"));
    const struct {
        const char* name;
        const char* before;
        const char* accepted;
    } states[] = {
        {"nothing", "", "ScreenshotPath"},
        {"an empty path", "<ScreenshotPath/>", "ScreenshotPath"},
        {"two empty paths", "<ScreenshotPath/><ScreenshotPath></ScreenshotPath>", "ScreenshotPath"},
        {"text", "p", "ScreenshotPath"},
        {"the start of the path", "<ScreenshotPath>", ""},
        {"the text of the path", "<ScreenshotPath>p", ""},
        {"the start of a second path", "<ScreenshotPath/><ScreenshotPath>", ""},
        {"the path", "<ScreenshotPath>p</ScreenshotPath>", "DisplayedObjects"},
        {"a blank path", "<ScreenshotPath> </ScreenshotPath>", "DisplayedObjects"},
        {"a path and text", "<ScreenshotPath>p</ScreenshotPath>q", "DisplayedObjects"},
        {"the start of the objects", "{P}<DisplayedObjects>",
         "DisplayedObjects DeploymentArea AreaOfInterest KnownEmitter Receiver DirectionFinder Result_FindSites "
         "Result_CEP Result_DetectProb Result_DfCoverage"},
        {"the start of the objects and text", "{P}<DisplayedObjects>p",
         "DisplayedObjects DeploymentArea AreaOfInterest KnownEmitter Receiver DirectionFinder Result_FindSites "
         "Result_CEP Result_DetectProb Result_DfCoverage"},
        {"a second start of the objects", "{P}<DisplayedObjects><DisplayedObjects>",
         "DisplayedObjects DeploymentArea AreaOfInterest KnownEmitter Receiver DirectionFinder Result_FindSites "
         "Result_CEP Result_DetectProb Result_DfCoverage"},
        {"an object", "{P}<DisplayedObjects>{R}",
         "DisplayedObjects Receiver DirectionFinder Result_FindSites Result_CEP Result_DetectProb Result_DfCoverage"},
        {"an object and a second start of the objects", "{P}<DisplayedObjects>{R}<DisplayedObjects>",
         "DisplayedObjects Receiver DirectionFinder Result_FindSites Result_CEP Result_DetectProb Result_DfCoverage"},
        {"empty objects", "{P}<DisplayedObjects/>", ""},
        {"the objects", "{P}<DisplayedObjects>{R}</DisplayedObjects>", ""},
        {"the end of nested objects", "{P}<DisplayedObjects><DisplayedObjects>{R}</DisplayedObjects>", ""},
    };
    const QStringList tags = words("ScreenshotPath DisplayedObjects ")
        + words(inOrder)
        // Results of the best sensor coverage cannot be shown; the others are not known at all.
        + words("Result_BestSensor Result_BestSensorCov Other AOI Emitter DF DfCoverage Screenshotpath "
                "displayedObjects receiver S");
    for (const auto& state : states) {
        const QString before = text(state.before)
                                   .replace(QLatin1String("{P}"), QLatin1String("<ScreenshotPath>p</ScreenshotPath>"))
                                   .replace(QLatin1String("{R}"), receiver);
        for (const QString& tag : tags) {
            const bool accepted = words(state.accepted).contains(tag);
            QTest::addRow("%s after %s is %s", qPrintable(tag), state.name, accepted ? "accepted" : "refused")
                << before << tag << accepted;
        }
    }
}

void SnapshotTest::startTags()
{
    QFETCH(QString, before);
    QFETCH(QString, tag);
    QFETCH(bool, accepted);

    Request request;
    const QString receiver = before.contains(QLatin1String("<Receiver")) ? text("Receiver:R") : QString();
    const Refusal refused = refusal(QStringLiteral("<S>\n%1<%2>|").arg(before, tag), text("XmlArvBtType"),
                                    text("Unexpected token \"StartElement\""));
    // The document ends after the tag: nothing else is wrong with it.
    QCOMPARE(readError(request, refused.xml), accepted ? text("Premature end of document.") : refused.error);
    // An object is held from its start tag on.
    const bool isObject = words(inOrder).contains(tag);
    const QString added = accepted && isObject ? tag + QLatin1Char(':') : QString();
    QCOMPARE(held(request),
             receiver + (receiver.isEmpty() || added.isEmpty() ? QString() : QStringLiteral(" ")) + added);
}

void SnapshotTest::endTags_data()
{
    QTest::addColumn<QString>("marked"); // without a mark where the document is complete

    const auto row = [](const char* name, const char* marked) {
        QTest::newRow(name) << text(marked).replace(QLatin1String("{P}"),
                                                    QLatin1String("<ScreenshotPath>p</ScreenshotPath>"));
    };
    row("nothing is too little", "<S>\n</S>|");
    row("nothing at all is too little", "<S/>|");
    row("text is too little", "<S>\np</S>|");
    row("an empty path is too little", "<S>\n<ScreenshotPath/></S>|");
    row("a path is too little", "<S>{P}\n</S>|");
    row("path and objects are enough", "<S>{P}\n<DisplayedObjects></DisplayedObjects>\n</S>");
    row("empty objects are enough", "<S>{P}<DisplayedObjects/></S>");
    row("an empty path may precede the path", "<S><ScreenshotPath/>{P}<DisplayedObjects/></S>");
    row("the second end of nested objects",
        "<S>{P}<DisplayedObjects>\n<DisplayedObjects></DisplayedObjects></DisplayedObjects>|</S>");
    row("the second end of empty nested objects",
        "<S>{P}<DisplayedObjects>\n<DisplayedObjects/></DisplayedObjects>|</S>");
    row("the end of another element", "<Q>{P}<DisplayedObjects/>\n</Q>|");
    row("the end of another element without a path", "<Q>\n</Q>|");
    row("a tag is compared with its case", "<s>{P}<DisplayedObjects/>\n</s>|");
    row("the end of a path that was not entered", "<ScreenshotPath>\n</ScreenshotPath>|");
    row("the end of a path that was left", "<ScreenshotPath>{P}\n</ScreenshotPath>|");
    row("the end of a path behind the objects", "<ScreenshotPath>{P}<DisplayedObjects/>\n</ScreenshotPath>|");
    row("the end of objects that were not entered", "<DisplayedObjects>{P}\n</DisplayedObjects>|");
    row("the end of objects that were left", "<DisplayedObjects>{P}<DisplayedObjects/>\n</DisplayedObjects>|");
}

void SnapshotTest::endTags()
{
    QFETCH(QString, marked);

    const bool complete = !marked.contains(QLatin1Char('|'));
    const Refusal refused = refusal(marked, text("XmlArvBtType"), text("Unexpected token \"EndElement\""));
    QXmlStreamReader reader(complete ? marked : refused.xml);
    reader.readNextStartElement();
    Request request;
    request.processXml(reader, QStringLiteral("S"));
    QCOMPARE(reader.errorString(), complete ? QString() : refused.error);
}

void SnapshotTest::otherTokensAreSkipped()
{
    Request request;
    const QString a = kinds().at(3).xml(QStringLiteral("A"));
    const QString b = kinds().at(4).xml(QStringLiteral("B"));
    QCOMPARE(readError(request,
                       text("<S other=\"2.0\">text<!-- c --><?pi d?><ScreenshotPath>p</ScreenshotPath>q"
                            "<![CDATA[<x/>]]><!-- c --><DisplayedObjects>text<!-- c -->")
                           + a + text("&lt;<?pi d?>\n<![CDATA[<x/>]]>") + b
                           + text("r<!-- c --></DisplayedObjects>text<!-- c --><![CDATA[<x/>]]><?pi d?></S>")),
             QString());
    QCOMPARE(request.screenshotPath(), QStringLiteral("p"));
    QCOMPARE(wire(request), document(a + b));
}

void SnapshotTest::tagOfAChild_data()
{
    QTest::addColumn<QString>("tag");
    for (const QString& tag : words("ScreenshotPath DisplayedObjects ") + words(inOrder))
        QTest::newRow(qPrintable(tag)) << tag;
}

void SnapshotTest::tagOfAChild()
{
    QFETCH(QString, tag);

    // The tag is its own, whatever its children are called.
    QXmlStreamReader reader(
        text("<%1><ScreenshotPath>p</ScreenshotPath><DisplayedObjects>%2</DisplayedObjects></%1>").arg(tag, allXml()));
    reader.readNextStartElement();
    Request request;
    request.processXml(reader, tag);
    QCOMPARE(reader.errorString(), QString());
    QCOMPARE(held(request), text(allHeld));
    QVERIFY(reader.isEndElement());
    QCOMPARE(reader.readNext(), QXmlStreamReader::EndDocument);
}

void SnapshotTest::tagFromTheRequest()
{
    // The tag may be a text of the very request that is read.
    Request request;
    request.setScreenshotPath(QStringLiteral("S"));
    QXmlStreamReader reader(document(QString()));
    reader.readNextStartElement();
    request.processXml(reader, request.screenshotPath());
    QCOMPARE(reader.errorString(), QString());
    QCOMPARE(request.screenshotPath(), QStringLiteral("p"));
}

void SnapshotTest::nothingBehindIsTouched()
{
    QXmlStreamReader reader(text("<Doc>%1<ScreenshotPath>Next</ScreenshotPath></Doc>").arg(document(QString())));
    reader.readNextStartElement();
    reader.readNextStartElement();
    Request request;
    request.processXml(reader, QStringLiteral("S"));
    QCOMPARE(reader.errorString(), QString());
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.readElementText(), QStringLiteral("Next"));
}

void SnapshotTest::wrongPosition_data()
{
    addWrongPositions("line 2, column 22", "line 2, column 29", "line 2, column 33");
}

void SnapshotTest::wrongPosition()
{
    QFETCH(int, tokens);
    QFETCH(QString, place);

    QXmlStreamReader reader(text("<?xml version=\"1.0\"?>\n<S version=\"2.0\">text<!-- --></S>"));
    for (int i = 0; i < tokens; ++i)
        reader.readNext();
    Request request = fullRequest();
    request.setVersion(QStringLiteral("3.0"));
    request.processXml(reader, QStringLiteral("S"));
    QCOMPARE(reader.errorString(), text("in XmlArvBtType (%1): Parse error (wrong position).").arg(place));
    QCOMPARE(wire(request), document(allXml())); // with the version "1.0", which is all that has changed
}

void SnapshotTest::versionsRead_data()
{
    QTest::addColumn<QString>("heldVersion");
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("version");

    for (const char* heldVersion : {"1.0", "9.9", ""}) {
        const auto row = [heldVersion](const char* name, const char* attribute, const char* message,
                                       const char* version) {
            QTest::addRow("%s, where \"%s\" is held", name, heldVersion)
                << text(heldVersion) << text(attribute) << text(message) << text(version);
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

void SnapshotTest::versionsRead()
{
    QFETCH(QString, heldVersion);
    QFETCH(QString, attribute);
    QFETCH(QString, message);
    QFETCH(QString, version);

    const Refusal refused = refusal(QStringLiteral("\n<S%1>|<ScreenshotPath>new</ScreenshotPath><DisplayedObjects>%2"
                                                   "</DisplayedObjects></S>")
                                        .arg(attribute, kinds().at(2).xml(QStringLiteral("New"))),
                                    text("XmlArvBtType"), message);
    Request request;
    request.setVersion(heldVersion);
    request.setScreenshotPath(QStringLiteral("old"));
    kinds().at(2).add(request, "Old");
    QCOMPARE(readError(request, refused.xml), message.isEmpty() ? QString() : refused.error);
    QCOMPARE(request.version(), version);
    QCOMPARE(request.isValid(), message.isEmpty());
    QCOMPARE(request.screenshotPath(), message.isEmpty() ? text("new") : text("old"));
    QCOMPARE(held(request), message.isEmpty() ? text("KnownEmitter:Old KnownEmitter:New") : text("KnownEmitter:Old"));
}

void SnapshotTest::objectsThatFail()
{
    QFETCH(const Kind*, kind);

    // The object that failed is held, too; what comes behind it is not read.
    const QString a = kind->xml(QStringLiteral("A"));
    const QString start = QStringLiteral("<S><ScreenshotPath>p</ScreenshotPath><DisplayedObjects>\n%1\n").arg(a);
    const QString end = a + text("</DisplayedObjects></S>");
    const Refusal version =
        refusal(start + QStringLiteral("<%1 version=\"2.0\">|<Name>B</Name></%1>").arg(kind->tag) + end,
                text(kind->className), text("Version not supported: 2.0"));
    Request request;
    QCOMPARE(readError(request, version.xml), version.error);
    QCOMPARE(held(request), QStringLiteral("%1:A %1:").arg(kind->tag));
    QVERIFY(!request.isValid());

    const Refusal element = refusal(start + QStringLiteral("<%1><Name>B</Name><x>|</x></%1>").arg(kind->tag) + end,
                                    text(kind->className), text("Unexpected element \"x\""));
    QCOMPARE(readError(request, element.xml), element.error);
    QCOMPARE(held(request), QStringLiteral("%1:A %1: %1:A %1:B").arg(kind->tag));

    // It is an object of the kind that its tag says, and told that tag.
    const Refusal incomplete = refusal(start + QStringLiteral("<%1><Name>C</Name></%1>|").arg(kind->tag) + end,
                                       text(kind->className), text("Unexpected token \"EndElement\""));
    QCOMPARE(readError(request, incomplete.xml), incomplete.error);
    QCOMPARE(held(request), QStringLiteral("%1:A %1: %1:A %1:B %1:A %1:C").arg(kind->tag));
    QCOMPARE(kind->count(request), 6);
}

void SnapshotTest::whiteSpaceInValues_data()
{
    QTest::addColumn<const Kind*>("kind");
    for (const Kind& kind : kinds()) {
        if (kind.tag.startsWith(QLatin1String("Result_")))
            QTest::newRow(qPrintable(kind.tag)) << &kind;
    }
}

void SnapshotTest::whiteSpaceInValues()
{
    QFETCH(const Kind*, kind);

    // An indented document can be read only as long as no result is shown.
    QString indented = kind->xml(QStringLiteral("A"));
    indented.replace(QLatin1String("<Min>"), QLatin1String("\n  <|Min>"));
    const Refusal refused =
        refusal(document(QLatin1Char('\n') + indented), text("XmlGridValuesType"), text("Unexpected characters"));
    Request request;
    QCOMPARE(readError(request, refused.xml), refused.error);
    QCOMPARE(held(request), kind->tag + QStringLiteral(":A"));
    QVERIFY(request.isValid());
}

void SnapshotTest::readingIntoUsedRequest()
{
    Request request = fullRequest();
    request.setVersion(QStringLiteral("2.0"));
    QCOMPARE(readError(request, text("<S><ScreenshotPath>new</ScreenshotPath><DisplayedObjects/></S>")), QString());
    QCOMPARE(request.version(), QStringLiteral("1.0"));
    QCOMPARE(request.screenshotPath(), QStringLiteral("new"));
    QCOMPARE(held(request), text(allHeld)); // the objects stay

    // Those held do not matter to the order of those read, which are added behind them.
    for (const Kind& kind : kinds()) {
        QCOMPARE(readError(request, document(kind.xml(QStringLiteral("C")))), QString());
        QCOMPARE(kind.names(request), words("A B C"));
    }
    QCOMPARE(request.screenshotPath(), QStringLiteral("p"));
    QVERIFY(request.isValid());
}

void SnapshotTest::useAfterFailedRead()
{
    Request request;
    const QString receiver = kinds().at(3).xml(QStringLiteral("A"));
    const QString emitter = kinds().at(2).xml(QStringLiteral("B"));
    QCOMPARE(readError(request, document(receiver + QLatin1Char('\n') + emitter)),
             text("in XmlArvBtType (line 2, column 28): Unexpected token \"StartElement\"."));
    QCOMPARE(request.screenshotPath(), QStringLiteral("p"));
    QCOMPARE(held(request), text("Receiver:A"));
    QVERIFY(request.isValid());
    QCOMPARE(request.syntaxError(), QString());
    QCOMPARE(wire(Request(request)), document(receiver));
    // The gates are open again, the error is forgotten.
    QCOMPARE(readError(request, document(emitter + receiver)), QString());
    QCOMPARE(held(request), text("KnownEmitter:B Receiver:A Receiver:A"));
    request.reset();
    QCOMPARE(held(request), QString());
}

void SnapshotTest::notWellFormed_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("error");

    const QString mismatch = text("Opening and ending tag mismatch.");
    QTest::newRow("a path that is never closed")
        << text("<S><ScreenshotPath>p<DisplayedObjects></DisplayedObjects></S>")
        << text("in XmlArvBtType (line 1, column 38): Unexpected token \"StartElement\".");
    QTest::newRow("a path closed by the end of the request") << text("<S><ScreenshotPath>p</S>") << mismatch;
    QTest::newRow("objects that are never closed")
        << text("<S><ScreenshotPath>p</ScreenshotPath><DisplayedObjects></S>") << mismatch;
    QTest::newRow("objects that end with the document")
        << text("<S><ScreenshotPath>p</ScreenshotPath><DisplayedObjects>") << text("Premature end of document.");
    QTest::newRow("a request that ends with the document")
        << text("<S><ScreenshotPath>p</ScreenshotPath><DisplayedObjects></DisplayedObjects>")
        << text("Premature end of document.");
}

void SnapshotTest::notWellFormed()
{
    QFETCH(QString, xml);
    QFETCH(QString, error);

    Request request;
    QCOMPARE(readError(request, xml), error); // the reader's own words are not replaced
    QCOMPARE(request.screenshotPath(), QStringLiteral("p"));
}

void SnapshotTest::checkedTexts_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("problems");

    const auto row = [](const char* name, const char* version, const char* path, const char* problems) {
        QTest::newRow(name) << text(version) << text(path) << text(problems);
    };
    row("complete", "1.0", "/tmp/plan.png", "");
    row("a blank path", "1.0", " ", "");
    row("without a path", "1.0", "", "Screen shot path is empty");
    row("of another version", "2.0", "p", "Version \"2.0\" not supported");
    row("of a version written otherwise", "1.00", "p", "Version \"1.00\" not supported");
    row("of a version with white space", " 1.0", "p", "Version \" 1.0\" not supported");
    row("without a version", "", "p", "Version \"\" not supported");
    row("of another version, without a path", "2.0", "", "Version \"2.0\" not supported\nScreen shot path is empty");
}

void SnapshotTest::checkedTexts()
{
    QFETCH(QString, version);
    QFETCH(QString, path);
    QFETCH(QString, problems);

    for (Request request : {Request(), fullRequest()}) { // the objects make no difference
        request.setVersion(version);
        request.setScreenshotPath(path);
        QCOMPARE(request.isValid(), problems.isEmpty());
        const QString error = problems.isEmpty() ? QString() : block("XmlArvBtType", problems);
        QCOMPARE(request.syntaxError(), error);
        QCOMPARE(request.syntaxError(), error);
        QCOMPARE(request.version(), version);
    }
}

void SnapshotTest::checkedObjects()
{
    QFETCH(const Kind*, kind);

    const QString problem =
        QStringLiteral("+++ in %1 Begin:\nVersion \"2.0\" not supported\n--- in %1 End").arg(text(kind->className));
    // Of three objects any may be wrong.
    for (int wrong = 0; wrong < 8; ++wrong) {
        Request request = fullRequest();
        kind->add(request, "C");
        QStringList problems;
        for (int i = 0; i < 3; ++i) {
            if (wrong & (1 << i)) {
                kind->setVersion(request, i, QStringLiteral("2.0"));
                problems.append(problem);
            }
        }
        QCOMPARE(request.isValid(), wrong == 0);
        const QString error = wrong == 0 ? QString() : block("XmlArvBtType", problems.join(QLatin1Char('\n')));
        QCOMPARE(request.syntaxError(), error);
        QCOMPARE(request.syntaxError(), error);
    }

    // The one wrong object among others makes the request invalid, also when nothing else is held.
    Request alone;
    alone.setScreenshotPath(QStringLiteral("p"));
    QVERIFY(alone.isValid());
    kind->add(alone, "A", "2.0");
    QVERIFY(!alone.isValid());
    QCOMPARE(alone.syntaxError(), block("XmlArvBtType", problem));
}

void SnapshotTest::everythingWrong()
{
    Request request;
    request.setVersion(QStringLiteral("2.0"));
    for (int i = int(kinds().size()) - 1; i >= 0; --i) {
        kinds().at(i).add(request, "A", "3.0");
        kinds().at(i).add(request, "B");
        kinds().at(i).add(request, "C", "4.0");
    }
    const auto both = [](const char* className) {
        return text("+++ in %1 Begin:\nVersion \"3.0\" not supported\n--- in %1 End\n"
                    "+++ in %1 Begin:\nVersion \"4.0\" not supported\n--- in %1 End\n")
            .replace(QLatin1String("%1"), text(className));
    };
    QVERIFY(!request.isValid());
    QCOMPARE(request.syntaxError(),
             text("+++ in XmlArvBtType Begin:\n"
                  "Version \"2.0\" not supported\n"
                  "Screen shot path is empty\n")
                 + both("XmlDeploymentAreaType") + both("XmlAoiType") + both("XmlEmitterType") + both("XmlReceiverType")
                 + both("XmlDfType") + both("XmlResInfo_FindSites_Type") + both("XmlResInfo_Cep_Type")
                 + both("XmlResInfo_DetectProb_Type") + both("XmlResInfo_DfCov_Type")
                 + text("--- in XmlArvBtType End"));
}

void SnapshotTest::reset()
{
    Request request = fullRequest();
    request.setVersion(QStringLiteral("2.0"));
    request.reset();
    QCOMPARE(request.version(), QStringLiteral("1.0"));
    QCOMPARE(request.screenshotPath(), QString());
    for (const Kind& kind : kinds()) {
        QCOMPARE(kind.count(request), 0);
        QVERIFY(kind.objects(request).isEmpty());
    }
    QCOMPARE(wire(request), text("<S version=\"1.0\"><ScreenshotPath></ScreenshotPath><DisplayedObjects/></S>"));
    QCOMPARE(request.syntaxError(),
             text("+++ in XmlArvBtType Begin:\n"
                  "Screen shot path is empty\n"
                  "--- in XmlArvBtType End"));
    // It can be filled again.
    QCOMPARE(readError(request, document(allXml())), QString());
    QCOMPARE(held(request), text(allHeld));
}

QTEST_APPLESS_MAIN(SnapshotTest)
#include "snapshot_test.moc"
