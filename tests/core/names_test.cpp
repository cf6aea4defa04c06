#include "support/elementtest.h"

#include <arvxml/names.h>

#include <limits>
#include <memory>
#include <type_traits>

using namespace ArvXml;

namespace {

enum class Kind { Name, Reference, Key, NameOrAll, NamesOrAll };

/// An element whose collected problems can be seen.
template <typename Element>
struct Probe : Element {
    QString storedError() { return this->mySyntaxError(); }
};

std::unique_ptr<IXmlElement> newElement(Kind kind)
{
    switch (kind) {
    case Kind::Name:
        return std::make_unique<XmlObjNameType>();
    case Kind::Reference:
        return std::make_unique<XmlReferenceType>();
    case Kind::Key:
        return std::make_unique<XmlKeyType>();
    case Kind::NameOrAll:
        return std::make_unique<XmlNameAllType>();
    case Kind::NamesOrAll:
        return std::make_unique<XmlNameAllMultiType>();
    }
    return nullptr;
}

/// Reads \a element under \a tag after \a tokens tokens of \a xml. Returns the reader's error.
QString errorAfter(int tokens, IXmlElement& element, const QString& xml, const QString& tag)
{
    QXmlStreamReader reader(xml);
    for (int i = 0; i < tokens; ++i)
        reader.readNext();
    element.processXml(reader, tag);
    return reader.errorString();
}

/// The two elements that are a plain text.
struct NameText {
    using Element = XmlObjNameType;
    static QString get(const Element& element) { return element.objName(); }
    static void set(Element& element, const QString& text) { element.setObjName(text); }
};
struct ReferenceText {
    using Element = XmlReferenceType;
    static QString get(const Element& element) { return element.reference(); }
    static void set(Element& element, const QString& text) { element.setReference(text); }
};

template <typename Text>
typename Text::Element textElement(const QString& text)
{
    typename Text::Element element;
    Text::set(element, text);
    return element;
}

XmlObjNameType objName(const QString& text)
{
    return textElement<NameText>(text);
}

XmlNameAllType oneName(const QString& name)
{
    XmlNameAllType element;
    element.setObjName(objName(name));
    return element;
}

XmlNameAllMultiType severalNames(const QStringList& names)
{
    QList<XmlObjNameType*> list;
    for (const QString& name : names)
        list.append(new XmlObjNameType(objName(name)));
    XmlNameAllMultiType element;
    element.setObjNames(list);
    qDeleteAll(list);
    return element;
}

QStringList namesIn(const XmlNameAllType& element)
{
    return element.hasObjName() ? QStringList(element.objName()->objName()) : QStringList();
}

QStringList namesIn(const XmlNameAllMultiType& element)
{
    QStringList names;
    for (const XmlObjNameType* name : element.objNames())
        names.append(name->objName());
    return names;
}

/// Has read a name, but not its own end: the name is held without a choice having been made.
template <typename Element>
Element brokenOff(const QString& name)
{
    Element element;
    ElementTest::readError(element, QStringLiteral("<E><Name>%1</Name>").arg(name));
    return element;
}

const QString oneUninitialised =
    QStringLiteral("+++ in XmlNameAllType Begin:\nUninitialized.\n--- in XmlNameAllType End");
const QString severalUninitialised =
    QStringLiteral("+++ in XmlNameAllMultiType Begin:\nUninitialized.\n--- in XmlNameAllMultiType End");

} // namespace

Q_DECLARE_METATYPE(Kind)

class NamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Texts and keys
    void newTextsAndKeys();
    void gettersHandOutReferences();
    void textsAreRead_data();
    void textsAreRead();
    void keysAreRead_data();
    void keysAreRead();
    void textsAreWritten_data();
    void textsAreWritten();
    void keysAreWritten_data();
    void keysAreWritten();
    void textsAreJudged_data();
    void textsAreJudged();
    void keysAreJudged_data();
    void keysAreJudged();
    void textsAndKeysAreCopied();
    void textsAndKeysAreReset();

    // One name or all
    void newNameOrAll();
    void nameOrAllIsSet();
    void nameOrAllIsRead_data();
    void nameOrAllIsRead();
    void nameOrAllIsReadAgain();
    void nameOrAllIsWritten();
    void nameOrAllIsJudged_data();
    void nameOrAllIsJudged();
    void nameOrAllIsCopied_data();
    void nameOrAllIsCopied();
    void nameOrAllIsReset();

    // Several names or all
    void newNamesOrAll();
    void namesOrAllAreSet();
    void namesOrAllAreRead_data();
    void namesOrAllAreRead();
    void namesOrAllAreReadAgain();
    void namesOrAllAreWritten();
    void namesOrAllAreJudged_data();
    void namesOrAllAreJudged();
    void namesOrAllAreCopied_data();
    void namesOrAllAreCopied();
    void namesOrAllAreReset();

    // All of them
    void readingStartsAnywhere_data();
    void readingStartsAnywhere();
    void ownEndTagComesFirst();
    void ownTextAsTag();
    void failedReadingLeavesAUsableElement();
};

// Texts and keys

void NamesTest::newTextsAndKeys()
{
    XmlObjNameType name;
    QCOMPARE(name.objName(), QString());
    QVERIFY(!name.isValid());
    QCOMPARE(
        name.syntaxError(),
        QStringLiteral("+++ in XmlObjNameType Begin:\nObject name too short (min. 1).\n--- in XmlObjNameType End"));
    QCOMPARE(ElementTest::written(name, QStringLiteral("Name")), QStringLiteral("<Name></Name>"));

    XmlReferenceType reference;
    QCOMPARE(reference.reference(), QString());
    QVERIFY(!reference.isValid());
    QCOMPARE(reference.syntaxError(),
             QStringLiteral("+++ in XmlreferenceType Begin:\nString too short (min. 1)\n--- in XmlreferenceType End"));
    QCOMPARE(ElementTest::written(reference, QStringLiteral("Reference")), QStringLiteral("<Reference></Reference>"));

    XmlKeyType key;
    QCOMPARE(key.key(), 0);
    QVERIFY(key.isValid());
    QCOMPARE(key.syntaxError(), QString());
    QCOMPARE(ElementTest::written(key, QStringLiteral("Key")), QStringLiteral("<Key>0</Key>"));
}

void NamesTest::gettersHandOutReferences()
{
    static_assert(std::is_same_v<decltype(std::declval<const XmlObjNameType&>().objName()), const QString&>);
    static_assert(std::is_same_v<decltype(std::declval<const XmlReferenceType&>().reference()), const QString&>);
    static_assert(std::is_same_v<decltype(std::declval<const XmlNameAllType&>().objName()), const XmlObjNameType*>);
    static_assert(
        std::is_same_v<decltype(std::declval<const XmlNameAllMultiType&>().objNames()), const QList<XmlObjNameType*>&>);

    XmlObjNameType name = objName(QStringLiteral("a"));
    name.setObjName(name.objName());
    QCOMPARE(name.objName(), QStringLiteral("a"));
    XmlReferenceType reference = textElement<ReferenceText>(QStringLiteral("b"));
    reference.setReference(reference.reference());
    QCOMPARE(reference.reference(), QStringLiteral("b"));
}

void NamesTest::textsAreRead_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("text");
    QTest::newRow("a plain text") << QStringLiteral("<N>Site 1</N>") << QStringLiteral("Site 1");
    QTest::newRow("blanks around the text are kept") << QStringLiteral("<N>  a b </N>") << QStringLiteral("  a b ");
    QTest::newRow("a text of blanks only replaces the old one") << QStringLiteral("<N>  </N>") << QStringLiteral("  ");
    QTest::newRow("line feeds are kept") << QStringLiteral("<N>\na\n</N>") << QStringLiteral("\na\n");
    QTest::newRow("references to characters are resolved")
        << QStringLiteral("<N>&lt;&amp;&#65;</N>") << QStringLiteral("<&A");
    QTest::newRow("attributes do not matter")
        << QStringLiteral("<N version=\"2.0\" unit=\"x\">a</N>") << QStringLiteral("a");
    QTest::newRow("of two pieces around a comment the last counts")
        << QStringLiteral("<N>first<!-- x -->second</N>") << QStringLiteral("second");
    QTest::newRow("of two pieces around an instruction the last counts")
        << QStringLiteral("<N>first<?do it?>second</N>") << QStringLiteral("second");
    QTest::newRow("a piece before a comment stays when nothing follows")
        << QStringLiteral("<N>first<!-- x --></N>") << QStringLiteral("first");
    QTest::newRow("an entity that only an absent document type knows is ignored")
        << QStringLiteral("<!DOCTYPE N SYSTEM \"n.dtd\"><N>first&other;</N>") << QStringLiteral("first");
    QTest::newRow("an empty element leaves the old text") << QStringLiteral("<N></N>") << QStringLiteral("old");
    QTest::newRow("an empty-element tag leaves the old text") << QStringLiteral("<N/>") << QStringLiteral("old");
    QTest::newRow("a comment alone leaves the old text")
        << QStringLiteral("<N><!-- x --></N>") << QStringLiteral("old");
    QTest::newRow("a text that is too long is stored")
        << QStringLiteral("<N>%1</N>").arg(QString(200, QLatin1Char('x'))) << QString(200, QLatin1Char('x'));
}

void NamesTest::textsAreRead()
{
    QFETCH(QString, xml);
    QFETCH(QString, text);

    XmlObjNameType name = objName(QStringLiteral("old"));
    QCOMPARE(ElementTest::readError(name, xml), QString());
    QCOMPARE(name.objName(), text);

    XmlReferenceType reference = textElement<ReferenceText>(QStringLiteral("old"));
    QCOMPARE(ElementTest::readError(reference, xml), QString());
    QCOMPARE(reference.reference(), text);
}

void NamesTest::keysAreRead_data()
{
    // On a text the stream has already looked at the character that ends it.
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("error");
    QTest::newRow("a number") << QStringLiteral("<K>42</K>") << 42 << QString();
    QTest::newRow("a negative number is no error") << QStringLiteral("<K>-3</K>") << -3 << QString();
    QTest::newRow("leading zeros are decimal") << QStringLiteral("<K>010</K>") << 10 << QString();
    QTest::newRow("the greatest") << QStringLiteral("<K>2147483647</K>") << 2147483647 << QString();
    QTest::newRow("the least") << QStringLiteral("<K>-2147483648</K>") << std::numeric_limits<int>::min() << QString();
    QTest::newRow("of two numbers the last counts") << QStringLiteral("<K>1<!-- x -->2</K>") << 2 << QString();
    QTest::newRow("an empty element leaves the old key") << QStringLiteral("<K></K>") << 7 << QString();
    QTest::newRow("above the greatest") << QStringLiteral("<K>2147483648</K>") << 0
                                        << QStringLiteral(
                                               "in XmlKeyType (line 1, column 14): Illegal value (must be numeric).");
    QTest::newRow("below the least") << QStringLiteral("<K>-2147483649</K>") << 0
                                     << QStringLiteral(
                                            "in XmlKeyType (line 1, column 15): Illegal value (must be numeric).");
    QTest::newRow("a text") << QStringLiteral("<K>abc</K>") << 0
                            << QStringLiteral("in XmlKeyType (line 1, column 7): Illegal value (must be numeric).");
    QTest::newRow("a text on the second line")
        << QStringLiteral("<K>\nabc</K>") << 0
        << QStringLiteral("in XmlKeyType (line 2, column 4): Illegal value (must be numeric).");
    QTest::newRow("a number with decimals")
        << QStringLiteral("<K>1.5</K>") << 0
        << QStringLiteral("in XmlKeyType (line 1, column 7): Illegal value (must be numeric).");
    QTest::newRow("a hexadecimal number")
        << QStringLiteral("<K>0x10</K>") << 0
        << QStringLiteral("in XmlKeyType (line 1, column 8): Illegal value (must be numeric).");
    QTest::newRow("a grouped number") << QStringLiteral(
        "<K>1,000</K>") << 0 << QStringLiteral("in XmlKeyType (line 1, column 9): Illegal value (must be numeric).");
    QTest::newRow("blanks only") << QStringLiteral(
        "<K>  </K>") << 0 << QStringLiteral("in XmlKeyType (line 1, column 6): Illegal value (must be numeric).");
    QTest::newRow("a number, then a text")
        << QStringLiteral("<K>1<!-- x -->y</K>") << 0
        << QStringLiteral("in XmlKeyType (line 1, column 16): Illegal value (must be numeric).");
    QTest::newRow("a text ends the reading before the number that follows")
        << QStringLiteral("<K>x<!-- x -->1</K>") << 0
        << QStringLiteral("in XmlKeyType (line 1, column 5): Illegal value (must be numeric).");
}

void NamesTest::keysAreRead()
{
    QFETCH(QString, xml);
    QFETCH(int, key);
    QFETCH(QString, error);

    XmlKeyType element;
    element.setKey(7);
    QCOMPARE(ElementTest::readError(element, xml), error);
    QCOMPARE(element.key(), key);
}

void NamesTest::textsAreWritten_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("xml");
    QTest::newRow("a plain text") << QStringLiteral("Site 1") << QStringLiteral("<Tag>Site 1</Tag>");
    QTest::newRow("an empty text") << QString() << QStringLiteral("<Tag></Tag>");
    QTest::newRow("blanks are kept") << QStringLiteral(" a ") << QStringLiteral("<Tag> a </Tag>");
    QTest::newRow("markup is escaped") << QStringLiteral("a<b&c") << QStringLiteral("<Tag>a&lt;b&amp;c</Tag>");
    QTest::newRow("a text that is too long")
        << QString(129, QLatin1Char('x')) << QStringLiteral("<Tag>%1</Tag>").arg(QString(129, QLatin1Char('x')));
}

void NamesTest::textsAreWritten()
{
    QFETCH(QString, text);
    QFETCH(QString, xml);
    QCOMPARE(ElementTest::written(objName(text), QStringLiteral("Tag")), xml);
    QCOMPARE(ElementTest::written(textElement<ReferenceText>(text), QStringLiteral("Tag")), xml);
}

void NamesTest::keysAreWritten_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("xml");
    QTest::newRow("a key") << 42 << QStringLiteral("<Tag>42</Tag>");
    QTest::newRow("a negative key") << -3 << QStringLiteral("<Tag>-3</Tag>");
    QTest::newRow("the greatest") << 2147483647 << QStringLiteral("<Tag>2147483647</Tag>");
}

void NamesTest::keysAreWritten()
{
    QFETCH(int, key);
    QFETCH(QString, xml);
    XmlKeyType element;
    element.setKey(key);
    QCOMPARE(ElementTest::written(element, QStringLiteral("Tag")), xml);
}

void NamesTest::textsAreJudged_data()
{
    const auto x = [](int count) { return QString(count, QLatin1Char('x')); };
    const QString fourBytes = QString::fromUcs4(U"\U0001F600", 1);
    const QString nameTooLong =
        QStringLiteral("+++ in XmlObjNameType Begin:\nObject name too long (max. 128)\n--- in XmlObjNameType End");
    const QString referenceTooLong =
        QStringLiteral("+++ in XmlreferenceType Begin:\nString too long (max. 50)\n--- in XmlreferenceType End");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("nameError");
    QTest::addColumn<QString>("referenceError");
    QTest::newRow("no character")
        << QString()
        << QStringLiteral("+++ in XmlObjNameType Begin:\nObject name too short (min. 1).\n--- in XmlObjNameType End")
        << QStringLiteral("+++ in XmlreferenceType Begin:\nString too short (min. 1)\n--- in XmlreferenceType End");
    QTest::newRow("1 character") << x(1) << QString() << QString();
    QTest::newRow("a blank") << QStringLiteral(" ") << QString() << QString();
    QTest::newRow("50 characters") << x(50) << QString() << QString();
    QTest::newRow("51 characters") << x(51) << QString() << referenceTooLong;
    QTest::newRow("128 characters") << x(128) << QString() << referenceTooLong;
    QTest::newRow("129 characters") << x(129) << nameTooLong << referenceTooLong;
    QTest::newRow("25 surrogate pairs") << fourBytes.repeated(25) << QString() << QString();
    QTest::newRow("26 surrogate pairs") << fourBytes.repeated(26) << QString() << referenceTooLong;
    QTest::newRow("64 surrogate pairs") << fourBytes.repeated(64) << QString() << referenceTooLong;
    QTest::newRow("65 surrogate pairs") << fourBytes.repeated(65) << nameTooLong << referenceTooLong;
}

void NamesTest::textsAreJudged()
{
    QFETCH(QString, text);
    QFETCH(QString, nameError);
    QFETCH(QString, referenceError);

    XmlObjNameType name = objName(text);
    QCOMPARE(name.isValid(), nameError.isEmpty());
    QCOMPARE(name.syntaxError(), nameError);
    QCOMPARE(name.syntaxError(), nameError); // the problems are not piled up
    QCOMPARE(name.objName(), text);

    XmlReferenceType reference = textElement<ReferenceText>(text);
    QCOMPARE(reference.isValid(), referenceError.isEmpty());
    QCOMPARE(reference.syntaxError(), referenceError);
    QCOMPARE(reference.syntaxError(), referenceError);
    QCOMPARE(reference.reference(), text);
}

void NamesTest::keysAreJudged_data()
{
    const QString illegal = QStringLiteral("+++ in XmlKeyType Begin:\nXmlMapType: Illegal Key.\n--- in XmlKeyType End");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("error");
    QTest::newRow("0") << 0 << QString();
    QTest::newRow("the greatest") << std::numeric_limits<int>::max() << QString();
    QTest::newRow("-1") << -1 << illegal;
    QTest::newRow("-3") << -3 << illegal;
    QTest::newRow("the least") << std::numeric_limits<int>::min() << illegal;
}

void NamesTest::keysAreJudged()
{
    QFETCH(int, key);
    QFETCH(QString, error);
    XmlKeyType element;
    element.setKey(key);
    QCOMPARE(element.isValid(), error.isEmpty());
    QCOMPARE(element.syntaxError(), error);
    QCOMPARE(element.syntaxError(), error);
    QCOMPARE(element.key(), key);
}

template <typename Text>
void textIsCopied(const QString& tooShort)
{
    using Element = typename Text::Element;
    Element source = textElement<Text>(QStringLiteral("a"));
    Element copy(source);
    QCOMPARE(Text::get(copy), QStringLiteral("a"));
    Text::set(source, QStringLiteral("b"));
    QCOMPARE(Text::get(copy), QStringLiteral("a"));
    QCOMPARE(&(copy = source), &copy);
    QCOMPARE(Text::get(copy), QStringLiteral("b"));
    const Element& itself = copy;
    copy = itself;
    QCOMPARE(Text::get(copy), QStringLiteral("b"));

    Probe<Element> judged;
    QCOMPARE(judged.syntaxError(), tooShort);
    Probe<Element> judgedCopy(judged);
    QCOMPARE(judgedCopy.storedError(), tooShort);
    Probe<Element> assigned;
    assigned = judged;
    QCOMPARE(assigned.storedError(), tooShort);
}

void NamesTest::textsAndKeysAreCopied()
{
    textIsCopied<NameText>(
        QStringLiteral("+++ in XmlObjNameType Begin:\nObject name too short (min. 1).\n--- in XmlObjNameType End"));
    textIsCopied<ReferenceText>(
        QStringLiteral("+++ in XmlreferenceType Begin:\nString too short (min. 1)\n--- in XmlreferenceType End"));

    XmlKeyType source;
    source.setKey(3);
    XmlKeyType copy(source);
    QCOMPARE(copy.key(), 3);
    source.setKey(4);
    QCOMPARE(copy.key(), 3);
    QCOMPARE(&(copy = source), &copy);
    QCOMPARE(copy.key(), 4);
    const XmlKeyType& itself = copy;
    copy = itself;
    QCOMPARE(copy.key(), 4);
}

void NamesTest::textsAndKeysAreReset()
{
    Probe<XmlObjNameType> name;
    name.setObjName(QString(129, QLatin1Char('x')));
    QVERIFY(!name.syntaxError().isEmpty());
    name.reset();
    QCOMPARE(name.objName(), QString());
    QCOMPARE(name.storedError(), QString());
    QCOMPARE(
        name.syntaxError(),
        QStringLiteral("+++ in XmlObjNameType Begin:\nObject name too short (min. 1).\n--- in XmlObjNameType End"));

    Probe<XmlReferenceType> reference;
    reference.setReference(QString(51, QLatin1Char('x')));
    QVERIFY(!reference.syntaxError().isEmpty());
    reference.reset();
    QCOMPARE(reference.reference(), QString());
    QCOMPARE(reference.storedError(), QString());
    QCOMPARE(reference.syntaxError(),
             QStringLiteral("+++ in XmlreferenceType Begin:\nString too short (min. 1)\n--- in XmlreferenceType End"));

    Probe<XmlKeyType> key;
    key.setKey(-3);
    QVERIFY(!key.syntaxError().isEmpty());
    key.reset();
    QCOMPARE(key.key(), 0);
    QCOMPARE(key.storedError(), QString());
    QCOMPARE(key.syntaxError(), QString());
}

// One name or all

void NamesTest::newNameOrAll()
{
    XmlNameAllType element;
    QVERIFY(element.all());
    QVERIFY(!element.hasObjName());
    QVERIFY(!element.objName());
    QVERIFY(!element.isValid());
    QCOMPARE(element.syntaxError(), oneUninitialised);
    QCOMPARE(ElementTest::written(element, QStringLiteral("E")), QStringLiteral("<E><All/></E>"));
}

void NamesTest::nameOrAllIsSet()
{
    XmlNameAllType element;
    element.setAll();
    QVERIFY(element.all());
    QVERIFY(element.isValid());
    QCOMPARE(element.syntaxError(), QString());

    XmlObjNameType name = objName(QStringLiteral("TX 1"));
    element.setObjName(name);
    QVERIFY(!element.all());
    QVERIFY(element.hasObjName());
    const XmlObjNameType* const held = element.objName();
    QVERIFY(held != &name);
    QCOMPARE(held->objName(), QStringLiteral("TX 1"));
    name.setObjName(QStringLiteral("changed"));
    QCOMPARE(held->objName(), QStringLiteral("TX 1"));

    element.setObjName(objName(QStringLiteral("TX 2")));
    QCOMPARE(element.objName(), held); // the name held is assigned to
    QCOMPARE(held->objName(), QStringLiteral("TX 2"));
    element.setObjName(*element.objName());
    QCOMPARE(element.objName()->objName(), QStringLiteral("TX 2"));

    element.setAll();
    QVERIFY(element.all());
    QVERIFY(!element.hasObjName());
    QVERIFY(!element.objName());
    QVERIFY(element.isValid());

    XmlNameAllType named;
    named.setObjName(name);
    QVERIFY(named.isValid());
    QCOMPARE(named.syntaxError(), QString());
}

void NamesTest::nameOrAllIsRead_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QStringList>("names");
    const QString all = QStringLiteral("<All/>");
    const QString name = QStringLiteral("<Name>a</Name>");
    const QString reference = QStringLiteral("<Reference>r</Reference>");
    const QString other = QStringLiteral("<Other/>");
    const QStringList none;
    const QStringList a = {QStringLiteral("a")};
    const auto element = [](const char* columnAndTag) {
        const QStringList parts = QString::fromLatin1(columnAndTag).split(QLatin1Char(' '));
        return QStringLiteral("in XmlNameAllType (line 1, column %1): Unexpected element \"%2\".")
            .arg(parts[0], parts[1]);
    };
    const auto end = [](qint64 column) {
        return QStringLiteral("in XmlNameAllType (line 1, column %1): Unexpected token \"EndElement\".").arg(column);
    };

    QTest::newRow("nothing") << QString() << end(7) << none;
    QTest::newRow("all") << all << QString() << none;
    QTest::newRow("a name") << name << QString() << a;
    QTest::newRow("a reference alone") << reference << end(31) << none;
    QTest::newRow("something else") << other << element("11 Other") << none;
    QTest::newRow("all in small letters") << QStringLiteral("<all/>") << element("9 all") << none;
    QTest::newRow("a text alone") << QStringLiteral("All") << end(10) << none;

    QTest::newRow("all, all") << all + all << element("15 All") << none;
    QTest::newRow("all, name") << all + name << element("15 Name") << none;
    QTest::newRow("all, reference") << all + reference << QString() << none;
    QTest::newRow("all, something else") << all + other << element("17 Other") << none;
    QTest::newRow("name, all") << name + all << element("23 All") << a;
    QTest::newRow("name, name") << name + name << element("23 Name") << a;
    QTest::newRow("name, reference") << name + reference << QString() << a;
    QTest::newRow("name, something else") << name + other << element("25 Other") << a;
    QTest::newRow("reference, all") << reference + all << QString() << none;
    QTest::newRow("reference, name") << reference + name << QString() << a;
    QTest::newRow("reference, reference") << reference + reference << end(55) << none;
    QTest::newRow("reference, something else") << reference + other << element("35 Other") << none;

    QTest::newRow("all between two references") << reference + all + reference << QString() << none;
    QTest::newRow("a name and two references") << name + reference + reference << QString() << a;
    QTest::newRow("reference, all, name") << reference + all + name << element("39 Name") << none;

    QTest::newRow("all with a text inside") << QStringLiteral("<All>every</All>") << QString() << none;
    QTest::newRow("all with a reference inside")
        << QStringLiteral("<All><Reference>r</Reference></All>") << QString() << none;
    QTest::newRow("all with a name inside") << QStringLiteral("<All><Name/></All>") << element("15 Name") << none;
    QTest::newRow("a reference with anything inside")
        << QStringLiteral("<Reference>x<All/><Name>n</Name><Other><Reference/></Other></Reference><Name>a</Name>")
        << QString() << a;
    QTest::newRow("texts, comments and instructions between the children")
        << QStringLiteral("\n x <!-- y --><?do it?><Name>a</Name> z ") << QString() << a;
    QTest::newRow("an entity that only an absent document type knows")
        << QStringLiteral("&other;<Name>a</Name>") << QString() << a;
    QTest::newRow("a name that fails is held")
        << QStringLiteral("<Name>a<b/></Name>")
        << QStringLiteral("in XmlObjNameType (line 1, column 14): Unexpected token \"StartElement\".") << a;
}

void NamesTest::nameOrAllIsRead()
{
    QFETCH(QString, content);
    QFETCH(QString, error);
    QFETCH(QStringList, names);

    XmlNameAllType element;
    // Only with a document type to be found elsewhere is an unknown entity no error of the stream.
    const QString xml = QStringLiteral("<E>%1</E>").arg(content);
    if (content.contains(QLatin1Char('&')))
        QCOMPARE(ElementTest::readError(element, QStringLiteral("<!DOCTYPE E SYSTEM \"e.dtd\">") + xml), error);
    else
        QCOMPARE(ElementTest::readError(element, xml), error);
    QCOMPARE(namesIn(element), names);
    QCOMPARE(element.all(), names.isEmpty());
    QCOMPARE(element.hasObjName(), !names.isEmpty());
    QCOMPARE(element.syntaxError(), error.isEmpty() ? QString() : oneUninitialised);
    QCOMPARE(element.isValid(), error.isEmpty() || !names.isEmpty());
}

void NamesTest::nameOrAllIsReadAgain()
{
    XmlNameAllType element = oneName(QStringLiteral("a"));
    const XmlObjNameType* const held = element.objName();
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<E><Name>b</Name></E>")), QString());
    QCOMPARE(element.objName(), held); // the name held reads itself again
    QCOMPARE(namesIn(element), QStringList(QStringLiteral("b")));

    QCOMPARE(ElementTest::readError(element, QStringLiteral("<E><Name/></E>")), QString());
    QCOMPARE(namesIn(element), QStringList(QStringLiteral("b")));

    // The choice is made on the start tag of "All", and stays made when the rest fails.
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<E><All/><X/></E>")),
             QStringLiteral("in XmlNameAllType (line 1, column 13): Unexpected element \"X\"."));
    QVERIFY(element.all());
    QVERIFY(element.isValid());
    QCOMPARE(element.syntaxError(), QString());

    QCOMPARE(ElementTest::readError(element, QStringLiteral("<E></E>")),
             QStringLiteral("in XmlNameAllType (line 1, column 7): Unexpected token \"EndElement\"."));
    QVERIFY(element.isValid());
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<E><Name>c</Name></E>")), QString());
    QCOMPARE(namesIn(element), QStringList(QStringLiteral("c")));
}

void NamesTest::nameOrAllIsWritten()
{
    const QString tag = QStringLiteral("Emitter");
    XmlNameAllType all;
    all.setAll();
    QCOMPARE(ElementTest::written(all, tag), QStringLiteral("<Emitter><All/></Emitter>"));
    QCOMPARE(ElementTest::written(oneName(QStringLiteral("TX & 1")), tag),
             QStringLiteral("<Emitter><Name>TX &amp; 1</Name></Emitter>"));
    QCOMPARE(ElementTest::written(oneName(QString()), tag), QStringLiteral("<Emitter><Name></Name></Emitter>"));
    QCOMPARE(ElementTest::written(brokenOff<XmlNameAllType>(QStringLiteral("a")), tag),
             QStringLiteral("<Emitter><Name>a</Name></Emitter>"));

    const auto read = ElementTest::readFrom<XmlNameAllType>(QStringLiteral("<E><All></All></E>"));
    QVERIFY(read.all());
    QVERIFY(read.isValid());
    QCOMPARE(ElementTest::written(read, tag), QStringLiteral("<Emitter><All/></Emitter>"));
}

void NamesTest::nameOrAllIsJudged_data()
{
    QTest::addColumn<bool>("initialised");
    QTest::addColumn<bool>("named");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("error");
    const QString tooLong(129, QLatin1Char('x'));
    QTest::newRow("no choice") << false << false << QString() << false << oneUninitialised;
    QTest::newRow("all") << true << false << QString() << true << QString();
    QTest::newRow("a good name") << true << true << QStringLiteral("a") << true << QString();
    QTest::newRow("a good name without the choice made")
        << false << true << QStringLiteral("a") << true << oneUninitialised;
    QTest::newRow("an empty name")
        << true << true << QString() << false
        << QStringLiteral("+++ in XmlNameAllType Begin:\n"
                          "+++ in XmlObjNameType Begin:\nObject name too short (min. 1).\n--- in XmlObjNameType End\n"
                          "--- in XmlNameAllType End");
    QTest::newRow("a name too long without the choice made")
        << false << true << tooLong << false
        << QStringLiteral("+++ in XmlNameAllType Begin:\n"
                          "Uninitialized.\n"
                          "+++ in XmlObjNameType Begin:\nObject name too long (max. 128)\n--- in XmlObjNameType End\n"
                          "--- in XmlNameAllType End");
}

void NamesTest::nameOrAllIsJudged()
{
    QFETCH(bool, initialised);
    QFETCH(bool, named);
    QFETCH(QString, name);
    QFETCH(bool, valid);
    QFETCH(QString, error);

    XmlNameAllType element;
    if (named)
        element = initialised ? oneName(name) : brokenOff<XmlNameAllType>(name);
    else if (initialised)
        element.setAll();
    QCOMPARE(element.isValid(), valid);
    QCOMPARE(element.syntaxError(), error);
    QCOMPARE(element.syntaxError(), error);
    QCOMPARE(element.isValid(), valid);
}

void NamesTest::nameOrAllIsCopied_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const QString all = QStringLiteral("<E><All/></E>");
    const QString a = QStringLiteral("<E><Name>a</Name></E>");
    const QString b = QStringLiteral("<E><Name>b</Name></E>");
    QTest::newRow("all to all") << all << all;
    QTest::newRow("all to a name") << all << a;
    QTest::newRow("a name to all") << a << all;
    QTest::newRow("a name to another") << a << b;
}

void NamesTest::nameOrAllIsCopied()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    const QString tag = QStringLiteral("E");

    auto source = ElementTest::readFrom<XmlNameAllType>(after);
    XmlNameAllType copy(source);
    QCOMPARE(ElementTest::written(copy, tag), after);
    QCOMPARE(copy.syntaxError(), QString()); // the choice is copied too
    QVERIFY(!copy.hasObjName() || copy.objName() != source.objName());

    auto assigned = ElementTest::readFrom<XmlNameAllType>(before);
    QCOMPARE(&(assigned = source), &assigned);
    QCOMPARE(ElementTest::written(assigned, tag), after);
    QVERIFY(!assigned.hasObjName() || assigned.objName() != source.objName());
    const XmlNameAllType& itself = assigned;
    assigned = itself;
    QCOMPARE(ElementTest::written(assigned, tag), after);

    source.setObjName(objName(QStringLiteral("changed")));
    QCOMPARE(ElementTest::written(copy, tag), after);
    QCOMPARE(ElementTest::written(assigned, tag), after);

    const XmlNameAllType unset;
    assigned = unset;
    QVERIFY(assigned.all());
    QVERIFY(!assigned.isValid()); // nor is there a choice any more
    QCOMPARE(assigned.syntaxError(), oneUninitialised);
    XmlNameAllType unsetCopy(unset);
    QCOMPARE(unsetCopy.syntaxError(), oneUninitialised);
    unsetCopy = copy;
    QCOMPARE(unsetCopy.syntaxError(), QString());
    QCOMPARE(ElementTest::written(unsetCopy, tag), after);
}

void NamesTest::nameOrAllIsReset()
{
    Probe<XmlNameAllType> element;
    element.setObjName(objName(QString()));
    QVERIFY(!element.syntaxError().isEmpty());
    element.reset();
    QCOMPARE(element.storedError(), QString());
    QVERIFY(element.all());
    QVERIFY(!element.objName());
    QVERIFY(!element.isValid());
    QCOMPARE(element.syntaxError(), oneUninitialised);
    QCOMPARE(ElementTest::written(element, QStringLiteral("E")), QStringLiteral("<E><All/></E>"));
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<E><Name>a</Name></E>")), QString());
    QVERIFY(element.isValid());
}

// Several names or all

void NamesTest::newNamesOrAll()
{
    XmlNameAllMultiType element;
    QVERIFY(element.all());
    QVERIFY(element.objNames().isEmpty());
    QVERIFY(!element.isValid());
    QCOMPARE(element.syntaxError(), severalUninitialised);
    QCOMPARE(ElementTest::written(element, QStringLiteral("E")), QStringLiteral("<E><All/></E>"));
}

void NamesTest::namesOrAllAreSet()
{
    XmlNameAllMultiType element;
    element.setObjNames({});
    QVERIFY(element.all());
    QVERIFY(element.isValid());
    QCOMPARE(element.syntaxError(), QString());
    QCOMPARE(ElementTest::written(element, QStringLiteral("E")), QStringLiteral("<E><All/></E>"));

    XmlObjNameType a = objName(QStringLiteral("a"));
    XmlObjNameType b = objName(QStringLiteral("b"));
    element.setObjNames({&b, nullptr, &a, &b});
    QVERIFY(!element.all());
    QCOMPARE(namesIn(element), QStringList({QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("b")}));
    for (const XmlObjNameType* name : element.objNames())
        QVERIFY(name != &a && name != &b);
    b.setObjName(QStringLiteral("changed"));
    QCOMPARE(namesIn(element), QStringList({QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("b")}));

    element.setObjNames(element.objNames());
    QCOMPARE(namesIn(element), QStringList({QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("b")}));
    element.setObjNames({element.objNames().at(1)});
    QCOMPARE(namesIn(element), QStringList(QStringLiteral("a")));

    element.setAll();
    QVERIFY(element.all());
    QVERIFY(element.objNames().isEmpty());
    QVERIFY(element.isValid());

    XmlNameAllMultiType chosen;
    chosen.setAll();
    QVERIFY(chosen.isValid());
    QCOMPARE(chosen.syntaxError(), QString());

    element.setObjNames({&a});
    element.setObjNames({});
    QVERIFY(element.all());
}

void NamesTest::namesOrAllAreRead_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QStringList>("names");
    const QString all = QStringLiteral("<All/>");
    const QString a = QStringLiteral("<Name>a</Name>");
    const QString b = QStringLiteral("<Name>b</Name>");
    const QString reference = QStringLiteral("<Reference>r</Reference>");
    const QString other = QStringLiteral("<Other/>");
    const QStringList none;
    const QStringList onlyA = {QStringLiteral("a")};
    const auto element = [](const char* columnAndTag) {
        const QStringList parts = QString::fromLatin1(columnAndTag).split(QLatin1Char(' '));
        return QStringLiteral("in XmlNameAllMultiType (line 1, column %1): Unexpected element \"%2\".")
            .arg(parts[0], parts[1]);
    };
    const auto end = [](qint64 column) {
        return QStringLiteral("in XmlNameAllMultiType (line 1, column %1): Unexpected token \"EndElement\".")
            .arg(column);
    };

    QTest::newRow("nothing") << QString() << end(7) << none;
    QTest::newRow("all") << all << QString() << none;
    QTest::newRow("a name") << a << QString() << onlyA;
    QTest::newRow("a reference") << reference << element("14 Reference") << none;
    QTest::newRow("something else") << other << element("11 Other") << none;
    QTest::newRow("name in small letters") << QStringLiteral("<name/>") << element("10 name") << none;

    QTest::newRow("all, all") << all + all << element("15 All") << none;
    QTest::newRow("all, name") << all + a << element("15 Name") << none;
    QTest::newRow("all, reference") << all + reference << element("20 Reference") << none;
    QTest::newRow("all, something else") << all + other << element("17 Other") << none;
    QTest::newRow("name, all") << a + all << element("23 All") << onlyA;
    QTest::newRow("name, name") << b + a << QString() << QStringList({QStringLiteral("b"), QStringLiteral("a")});
    QTest::newRow("name, reference") << a + reference << element("28 Reference") << onlyA;
    QTest::newRow("name, something else") << a + other << element("25 Other") << onlyA;
    QTest::newRow("the same name three times")
        << a + a + a << QString() << QStringList({QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("a")});
    QTest::newRow("name, name, all") << b + a + all << element("37 All")
                                     << QStringList({QStringLiteral("b"), QStringLiteral("a")});

    QTest::newRow("all with a text inside") << QStringLiteral("<All>every</All>") << QString() << none;
    QTest::newRow("all with a name inside") << QStringLiteral("<All><Name/></All>") << element("15 Name") << none;
    QTest::newRow("all with a reference inside")
        << QStringLiteral("<All><Reference/></All>") << element("20 Reference") << none;
    QTest::newRow("texts, comments and instructions between the children")
        << QStringLiteral("\n x <!-- y --><?do it?><Name>a</Name> z ") << QString() << onlyA;
    QTest::newRow("an empty name is a name") << QStringLiteral("<Name/>") << QString() << QStringList(QString());
    QTest::newRow("a name that fails is held")
        << a + QStringLiteral("<Name>b<c/></Name>")
        << QStringLiteral("in XmlObjNameType (line 1, column 28): Unexpected token \"StartElement\".")
        << QStringList({QStringLiteral("a"), QStringLiteral("b")});
}

void NamesTest::namesOrAllAreRead()
{
    QFETCH(QString, content);
    QFETCH(QString, error);
    QFETCH(QStringList, names);

    XmlNameAllMultiType element;
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<E>%1</E>").arg(content)), error);
    QCOMPARE(namesIn(element), names);
    QCOMPARE(element.all(), names.isEmpty());
    QCOMPARE(element.isValid(), error.isEmpty() && !names.contains(QString()));
    QCOMPARE(element.syntaxError().contains(QStringLiteral("Uninitialized.")), !error.isEmpty());
}

void NamesTest::namesOrAllAreReadAgain()
{
    XmlNameAllMultiType element = severalNames({QStringLiteral("a")});
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<E><Name>b</Name><Name/></E>")), QString());
    QCOMPARE(namesIn(element), QStringList({QStringLiteral("a"), QStringLiteral("b"), QString()}));

    QCOMPARE(ElementTest::readError(element, QStringLiteral("<E></E>")),
             QStringLiteral("in XmlNameAllMultiType (line 1, column 7): Unexpected token \"EndElement\"."));
    QCOMPARE(namesIn(element), QStringList({QStringLiteral("a"), QStringLiteral("b"), QString()}));

    QCOMPARE(ElementTest::readError(element, QStringLiteral("<E><All/><X/></E>")),
             QStringLiteral("in XmlNameAllMultiType (line 1, column 13): Unexpected element \"X\"."));
    QVERIFY(element.all());
    QVERIFY(element.isValid()); // a choice once made is not taken back
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<E><Name>c</Name></E>")), QString());
    QCOMPARE(namesIn(element), QStringList(QStringLiteral("c")));
}

void NamesTest::namesOrAllAreWritten()
{
    const QString tag = QStringLiteral("AOIs");
    XmlNameAllMultiType all;
    all.setAll();
    QCOMPARE(ElementTest::written(all, tag), QStringLiteral("<AOIs><All/></AOIs>"));
    QCOMPARE(ElementTest::written(severalNames({QStringLiteral("S & W"), QString(), QStringLiteral("N")}), tag),
             QStringLiteral("<AOIs><Name>S &amp; W</Name><Name></Name><Name>N</Name></AOIs>"));
    QCOMPARE(ElementTest::written(brokenOff<XmlNameAllMultiType>(QStringLiteral("a")), tag),
             QStringLiteral("<AOIs><Name>a</Name></AOIs>"));
}

void NamesTest::namesOrAllAreJudged_data()
{
    QTest::addColumn<bool>("initialised");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("error");
    const QString tooLong(129, QLatin1Char('x'));
    QTest::newRow("no choice") << false << QStringList() << severalUninitialised;
    QTest::newRow("all") << true << QStringList() << QString();
    QTest::newRow("good names") << true << QStringList({QStringLiteral("a"), QStringLiteral("b")}) << QString();
    QTest::newRow("a good name without the choice made")
        << false << QStringList(QStringLiteral("a")) << severalUninitialised;
    QTest::newRow("two bad names around a good one")
        << true << QStringList({QString(), QStringLiteral("a"), tooLong})
        << QStringLiteral("+++ in XmlNameAllMultiType Begin:\n"
                          "+++ in XmlObjNameType Begin:\nObject name too short (min. 1).\n--- in XmlObjNameType End\n"
                          "+++ in XmlObjNameType Begin:\nObject name too long (max. 128)\n--- in XmlObjNameType End\n"
                          "--- in XmlNameAllMultiType End");
    QTest::newRow("an empty name without the choice made")
        << false << QStringList(QString())
        << QStringLiteral("+++ in XmlNameAllMultiType Begin:\n"
                          "Uninitialized.\n"
                          "+++ in XmlObjNameType Begin:\nObject name too short (min. 1).\n--- in XmlObjNameType End\n"
                          "--- in XmlNameAllMultiType End");
}

void NamesTest::namesOrAllAreJudged()
{
    QFETCH(bool, initialised);
    QFETCH(QStringList, names);
    QFETCH(QString, error);

    XmlNameAllMultiType element;
    if (initialised)
        element = severalNames(names);
    else if (!names.isEmpty())
        element = brokenOff<XmlNameAllMultiType>(names.first());
    QCOMPARE(namesIn(element), names);
    QCOMPARE(element.isValid(), error.isEmpty());
    QCOMPARE(element.syntaxError(), error);
    QCOMPARE(element.syntaxError(), error);
    QCOMPARE(element.isValid(), error.isEmpty());
}

void NamesTest::namesOrAllAreCopied_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QStringList>("after");
    const QStringList a = {QStringLiteral("a")};
    const QStringList bc = {QStringLiteral("b"), QStringLiteral("c")};
    QTest::newRow("all to all") << QStringList() << QStringList();
    QTest::newRow("all to names") << QStringList() << bc;
    QTest::newRow("names to all") << bc << QStringList();
    QTest::newRow("names to fewer names") << bc << a;
    QTest::newRow("a name to more names") << a << bc;
}

void NamesTest::namesOrAllAreCopied()
{
    QFETCH(QStringList, before);
    QFETCH(QStringList, after);

    XmlNameAllMultiType source = severalNames(after);
    XmlNameAllMultiType copy(source);
    QCOMPARE(namesIn(copy), after);
    QCOMPARE(copy.syntaxError(), QString()); // the choice is copied too
    XmlNameAllMultiType assigned = severalNames(before);
    QCOMPARE(&(assigned = source), &assigned);
    QCOMPARE(namesIn(assigned), after);
    for (int i = 0; i < after.size(); ++i) {
        QVERIFY(copy.objNames().at(i) != source.objNames().at(i));
        QVERIFY(assigned.objNames().at(i) != source.objNames().at(i));
    }
    const XmlNameAllMultiType& itself = assigned;
    assigned = itself;
    QCOMPARE(namesIn(assigned), after);

    for (XmlObjNameType* name : source.objNames())
        name->setObjName(QStringLiteral("changed"));
    source.setAll();
    QCOMPARE(namesIn(copy), after);
    QCOMPARE(namesIn(assigned), after);

    const XmlNameAllMultiType unset;
    assigned = unset;
    QVERIFY(assigned.all());
    QCOMPARE(assigned.syntaxError(), severalUninitialised);
    XmlNameAllMultiType unsetCopy(unset);
    QCOMPARE(unsetCopy.syntaxError(), severalUninitialised);
    unsetCopy = copy;
    QCOMPARE(namesIn(unsetCopy), after);
    QCOMPARE(unsetCopy.syntaxError(), QString());
}

void NamesTest::namesOrAllAreReset()
{
    Probe<XmlNameAllMultiType> element;
    XmlObjNameType empty;
    element.setObjNames({&empty, &empty});
    QVERIFY(!element.syntaxError().isEmpty());
    element.reset();
    QCOMPARE(element.storedError(), QString());
    QVERIFY(element.all());
    QVERIFY(!element.isValid());
    QCOMPARE(element.syntaxError(), severalUninitialised);
    QCOMPARE(ElementTest::written(element, QStringLiteral("E")), QStringLiteral("<E><All/></E>"));
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<E><Name>a</Name></E>")), QString());
    QVERIFY(element.isValid());
}

// All of them

void NamesTest::readingStartsAnywhere_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("tokens");
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("result");
    const QString e = QStringLiteral("E");
    const QString declared = QStringLiteral("<?xml version=\"1.0\"?><E/>");
    const QString one = QStringLiteral("<E>1</E>");
    const QString all = QStringLiteral("<E> <All/></E>");
    const QString inner = QStringLiteral("<E><X/>1</E>");
    const QString emptyText = QStringLiteral("<r></r>");
    const QString zero = QStringLiteral("<r>0</r>");
    const QString writtenAll = QStringLiteral("<r><All/></r>");

    QTest::newRow("a name before the first token")
        << Kind::Name << 0 << declared << e
        << QStringLiteral("in XmlObjNameType (line 1, column 21): Unexpected token \"StartDocument\".") << emptyText;
    QTest::newRow("a reference before the first token")
        << Kind::Reference << 0 << declared << e
        << QStringLiteral("in XmlreferenceType (line 1, column 21): Unexpected token \"StartDocument\".") << emptyText;
    QTest::newRow("a key before the first token")
        << Kind::Key << 0 << declared << e
        << QStringLiteral("in XmlKeyType (line 1, column 21): Unexpected token \"StartDocument\".") << zero;
    QTest::newRow("a name or all before the first token")
        << Kind::NameOrAll << 0 << declared << e
        << QStringLiteral("in XmlNameAllType (line 1, column 21): Unexpected token \"StartDocument\".") << writtenAll;
    QTest::newRow("names or all before the first token")
        << Kind::NamesOrAll << 0 << declared << e
        << QStringLiteral("in XmlNameAllMultiType (line 1, column 21): Unexpected token \"StartDocument\".")
        << writtenAll;

    QTest::newRow("a name before the start tag")
        << Kind::Name << 1 << one << e
        << QStringLiteral("in XmlObjNameType (line 1, column 3): Unexpected token \"StartElement\".") << emptyText;
    QTest::newRow("a name or all before the document type and its start tag")
        << Kind::NameOrAll << 1 << QStringLiteral("<!DOCTYPE All><All/>") << QStringLiteral("All") << QString()
        << writtenAll;

    QTest::newRow("a name after its text") << Kind::Name << 3 << one << e << QString() << emptyText;
    QTest::newRow("a reference after its text") << Kind::Reference << 3 << one << e << QString() << emptyText;
    QTest::newRow("a key after its text") << Kind::Key << 3 << one << e << QString() << zero;
    QTest::newRow("a name or all after a text") << Kind::NameOrAll << 3 << all << e << QString() << writtenAll;
    QTest::newRow("names or all after a text") << Kind::NamesOrAll << 3 << all << e << QString() << writtenAll;

    QTest::newRow("a name after its end tag")
        << Kind::Name << 4 << one << e
        << QStringLiteral("in XmlObjNameType (line 1, column 8): Unexpected token \"EndDocument\".") << emptyText;
    QTest::newRow("a reference after its end tag")
        << Kind::Reference << 4 << one << e
        << QStringLiteral("in XmlreferenceType (line 1, column 8): Unexpected token \"EndDocument\".") << emptyText;
    QTest::newRow("a key after its end tag")
        << Kind::Key << 4 << one << e
        << QStringLiteral("in XmlKeyType (line 1, column 8): Unexpected token \"EndDocument\".") << zero;
    QTest::newRow("a name or all after its end tag")
        << Kind::NameOrAll << 4 << one << e
        << QStringLiteral("in XmlNameAllType (line 1, column 8): Unexpected token \"EndDocument\".") << writtenAll;
    QTest::newRow("names or all after the end tag")
        << Kind::NamesOrAll << 4 << one << e
        << QStringLiteral("in XmlNameAllMultiType (line 1, column 8): Unexpected token \"EndDocument\".") << writtenAll;

    QTest::newRow("a name at the end of the document") << Kind::Name << 5 << one << e << QString() << emptyText;
    QTest::newRow("a reference at the end of the document")
        << Kind::Reference << 5 << one << e << QString() << emptyText;
    QTest::newRow("a key at the end of the document") << Kind::Key << 5 << one << e << QString() << zero;
    QTest::newRow("a name or all at the end of the document")
        << Kind::NameOrAll << 5 << one << e << QString() << writtenAll;
    QTest::newRow("names or all at the end of the document")
        << Kind::NamesOrAll << 5 << one << e << QString() << writtenAll;

    QTest::newRow("a name under another tag")
        << Kind::Name << 2 << one << QStringLiteral("F")
        << QStringLiteral("in XmlObjNameType (line 1, column 8): Unexpected token \"EndElement\".")
        << QStringLiteral("<r>1</r>");
    QTest::newRow("a reference under another tag")
        << Kind::Reference << 2 << one << QStringLiteral("e")
        << QStringLiteral("in XmlreferenceType (line 1, column 8): Unexpected token \"EndElement\".")
        << QStringLiteral("<r>1</r>");
    QTest::newRow("a key under another tag")
        << Kind::Key << 2 << one << QStringLiteral("F")
        << QStringLiteral("in XmlKeyType (line 1, column 8): Unexpected token \"EndElement\".")
        << QStringLiteral("<r>1</r>");
    QTest::newRow("a name or all under another tag")
        << Kind::NameOrAll << 2 << all << QStringLiteral("F")
        << QStringLiteral("in XmlNameAllType (line 1, column 14): Unexpected token \"EndElement\".") << writtenAll;
    QTest::newRow("names or all under another tag")
        << Kind::NamesOrAll << 2 << all << QStringLiteral("F")
        << QStringLiteral("in XmlNameAllMultiType (line 1, column 14): Unexpected token \"EndElement\".") << writtenAll;

    QTest::newRow("a name or all from inside a strange element")
        << Kind::NameOrAll << 3 << inner << e
        << QStringLiteral("in XmlNameAllType (line 1, column 7): Unexpected token \"EndElement\".") << writtenAll;
    QTest::newRow("names or all from inside a strange element")
        << Kind::NamesOrAll << 3 << inner << e
        << QStringLiteral("in XmlNameAllMultiType (line 1, column 7): Unexpected token \"EndElement\".") << writtenAll;
    QTest::newRow("a name or all from inside a name")
        << Kind::NameOrAll << 3 << QStringLiteral("<E><Name/><All/></E>") << e
        << QStringLiteral("in XmlNameAllType (line 1, column 10): Unexpected token \"EndElement\".") << writtenAll;
    QTest::newRow("names or all from inside a name")
        << Kind::NamesOrAll << 3 << QStringLiteral("<E><Name/><All/></E>") << e
        << QStringLiteral("in XmlNameAllMultiType (line 1, column 10): Unexpected token \"EndElement\".") << writtenAll;
    QTest::newRow("a name or all from inside a reference")
        << Kind::NameOrAll << 3 << QStringLiteral("<E><Reference/><Name>a</Name></E>") << e << QString()
        << QStringLiteral("<r><Name>a</Name></r>");
    QTest::newRow("names or all from inside a reference")
        << Kind::NamesOrAll << 3 << QStringLiteral("<E><Reference/><Name>a</Name></E>") << e
        << QStringLiteral("in XmlNameAllMultiType (line 1, column 15): Unexpected token \"EndElement\".") << writtenAll;
    QTest::newRow("a name or all from inside All")
        << Kind::NameOrAll << 3 << QStringLiteral("<E><All/><Name>a</Name></E>") << e << QString()
        << QStringLiteral("<r><Name>a</Name></r>");
    QTest::newRow("names or all from inside All")
        << Kind::NamesOrAll << 3 << QStringLiteral("<E><All/><Name>a</Name></E>") << e << QString()
        << QStringLiteral("<r><Name>a</Name></r>");
}

void NamesTest::readingStartsAnywhere()
{
    QFETCH(Kind, kind);
    QFETCH(int, tokens);
    QFETCH(QString, xml);
    QFETCH(QString, tag);
    QFETCH(QString, error);
    QFETCH(QString, result);
    const auto element = newElement(kind);
    QCOMPARE(errorAfter(tokens, *element, xml, tag), error);
    QCOMPARE(ElementTest::written(*element, QStringLiteral("r")), result);
}

template <typename Element>
void endsAtTheInnerAll()
{
    QXmlStreamReader reader(QStringLiteral("<All><All/></All>"));
    reader.readNextStartElement();
    Element element;
    element.processXml(reader, QStringLiteral("All"));
    QCOMPARE(reader.errorString(), QString());
    QVERIFY(element.isValid());
    QCOMPARE(reader.readNext(), QXmlStreamReader::EndElement);
    QCOMPARE(reader.readNext(), QXmlStreamReader::EndDocument);
}

// The tag may be the text that the element holds and, reading, replaces.
void NamesTest::ownTextAsTag()
{
    XmlObjNameType name;
    name.setObjName(QStringLiteral("N"));
    QXmlStreamReader reader(QStringLiteral("<D><N>another name</N><Next/></D>"));
    reader.readNextStartElement();
    reader.readNextStartElement();
    name.processXml(reader, name.objName());
    QCOMPARE(reader.errorString(), QString());
    QCOMPARE(name.objName(), QStringLiteral("another name"));
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.name().toString(), QStringLiteral("Next"));
}

void NamesTest::ownEndTagComesFirst()
{
    endsAtTheInnerAll<XmlNameAllType>();
    endsAtTheInnerAll<XmlNameAllMultiType>();
}

void NamesTest::failedReadingLeavesAUsableElement()
{
    XmlObjNameType name;
    QCOMPARE(ElementTest::readError(name, QStringLiteral("<N>a<b/></N>")),
             QStringLiteral("in XmlObjNameType (line 1, column 8): Unexpected token \"StartElement\"."));
    QCOMPARE(name.objName(), QStringLiteral("a"));
    QVERIFY(name.isValid());
    QCOMPARE(XmlObjNameType(name).objName(), QStringLiteral("a"));
    name.reset();
    QCOMPARE(name.objName(), QString());
    QCOMPARE(ElementTest::readError(name, QStringLiteral("<N>c</N>")), QString());
    QCOMPARE(name.objName(), QStringLiteral("c"));

    auto several = brokenOff<XmlNameAllMultiType>(QStringLiteral("a"));
    QVERIFY(!several.isValid());
    QCOMPARE(several.syntaxError(), severalUninitialised);
    QCOMPARE(namesIn(XmlNameAllMultiType(several)), QStringList(QStringLiteral("a")));
    QCOMPARE(ElementTest::written(several, QStringLiteral("E")), QStringLiteral("<E><Name>a</Name></E>"));
    QCOMPARE(ElementTest::readError(several, QStringLiteral("<E><Name>b</Name></E>")), QString());
    QCOMPARE(namesIn(several), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QVERIFY(several.isValid());

    auto one = brokenOff<XmlNameAllType>(QStringLiteral("a"));
    QCOMPARE(XmlNameAllType(one).syntaxError(), oneUninitialised);
    one.reset();
    QVERIFY(!one.hasObjName());
    QCOMPARE(ElementTest::readError(one, QStringLiteral("<E><Name>b</Name></E>")), QString());
    QCOMPARE(one.syntaxError(), QString());
    QCOMPARE(namesIn(one), QStringList(QStringLiteral("b")));
}

QTEST_APPLESS_MAIN(NamesTest)
#include "names_test.moc"
