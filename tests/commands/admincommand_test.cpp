#include "support/commandtest.h"
#include "support/positions.h"

#include <arvxml/admincommand.h>

#include <type_traits>
#include <utility>

using namespace ArvXml;
using namespace CommandTest;
using ElementTest::checkReadingFromElsewhere;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;
using TestValues::envelope;
using TestValues::reference;

namespace {

const QString adminTag = QStringLiteral("Administrative");
const QString queryXml = QStringLiteral("<Administrative><QueryVersion/><Reference>42</Reference></Administrative>");
const QString emptyXml = QStringLiteral("<Administrative><Reference></Reference></Administrative>");
const QString typeProblem = QStringLiteral("Invalid Administrative command type\n");

QString block(const QString& body)
{
    return QStringLiteral("+++ in XmlCmdAdmin Begin:\n") + body + QStringLiteral("--- in XmlCmdAdmin End");
}

/// Shows what the base keeps for itself.
struct Admin : XmlCmdAdmin {
    using XmlCmdAdmin::classname;
    using XmlCmdAdmin::mySyntaxError;
};

} // namespace

class AdmincommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void interface();
    void defaults();
    void accessors();
    void copies();
    void reading_data();
    void reading();
    void readerErrors_data();
    void readerErrors();
    void judgement();
    void reset();
    void reuse();
    void positions();
    void underTheTagOfTheQuery();
};

template <typename T, typename = void>
struct HasSetAdminCmd : std::false_type {
};
template <typename T>
struct HasSetAdminCmd<T, std::void_t<decltype(std::declval<T&>().setAdminCmd(XmlCmdAdmin::AdminQueryVersion))>>
    : std::true_type {
};

void AdmincommandTest::interface()
{
    static_assert(!HasSetAdminCmd<XmlCmdAdmin>::value); // the kind is set by reading alone
    static_assert(std::is_base_of_v<XmlElementBase, XmlCmdAdmin>);
    static_assert(XmlCmdAdmin::AdminUndefined == 0);
    static_assert(XmlCmdAdmin::AdminQueryVersion == 1);
    static_assert(std::is_same_v<decltype(std::declval<const XmlCmdAdmin&>().adminCmd()), XmlCmdAdmin::AdminCmd>);
    static_assert(std::is_same_v<decltype(std::declval<XmlCmdAdmin&>().cmdReference()), const XmlReferenceType&>);
    static_assert(std::is_same_v<decltype(std::declval<XmlCmdAdmin&>().orderDef()), const XmlOrderDef*>);
    QCOMPARE(Admin().classname(), QStringLiteral("XmlCmdAdmin"));
}

void AdmincommandTest::defaults()
{
    Admin command;
    QCOMPARE(command.adminCmd(), XmlCmdAdmin::AdminUndefined);
    QCOMPARE(command.cmdReference().reference(), QString());
    QVERIFY(!command.hasOrderDef());
    QVERIFY(!command.orderDef());
    QVERIFY(!command.isValid());
    QCOMPARE(command.syntaxError(), block(typeProblem + referenceProblem));
    QCOMPARE(written(command, adminTag), emptyXml);
}

void AdmincommandTest::accessors()
{
    Admin command;
    checkReferenceAccessors(command);
    QCOMPARE(written(command, adminTag), QStringLiteral("<Administrative><Reference>42</Reference></Administrative>"));

    checkEnvelopeAccessors(command);

    // The envelope is neither written nor judged by the command.
    auto query = readFrom<XmlCmdAdmin>(queryXml);
    query.setOrderDef(XmlOrderDef());
    QCOMPARE(written(query, adminTag), queryXml);
    QVERIFY(query.isValid());
    QCOMPARE(query.syntaxError(), QString());
}

void AdmincommandTest::copies()
{
    auto original = readFrom<Admin>(queryXml);
    original.setOrderDef(envelope(QStringLiteral("host")));
    Admin copy(original);
    Admin assigned;
    assigned = original;
    QVERIFY(copy.orderDef() != original.orderDef());
    QVERIFY(assigned.orderDef() != original.orderDef());
    original.setCmdReference(reference(QStringLiteral("43")));
    original.setOrderDef(envelope(QStringLiteral("other")));
    QCOMPARE(written(copy, adminTag), queryXml);
    QCOMPARE(written(assigned, adminTag), queryXml);
    QCOMPARE(copy.orderDef()->orderSender(), QStringLiteral("host"));
    QCOMPARE(assigned.orderDef()->orderSender(), QStringLiteral("host"));
    const Admin& same = copy;
    copy = same;
    QCOMPARE(written(copy, adminTag), queryXml);
    QCOMPARE(copy.orderDef()->orderSender(), QStringLiteral("host"));

    copy = original; // both hold an envelope
    QCOMPARE(copy.orderDef()->orderSender(), QStringLiteral("other"));
    QVERIFY(copy.orderDef() != original.orderDef());
    copy = Admin(); // only the target does
    QVERIFY(!copy.hasOrderDef());
    QCOMPARE(copy.adminCmd(), XmlCmdAdmin::AdminUndefined);
    QCOMPARE(written(copy, adminTag), emptyXml);
    copy = Admin(); // none does
    QVERIFY(!copy.hasOrderDef());
    QVERIFY(!Admin(copy).hasOrderDef());
    copy = original; // only the source does
    QVERIFY(copy.hasOrderDef());
    QCOMPARE(copy.adminCmd(), XmlCmdAdmin::AdminQueryVersion);

    Admin faulty;
    faulty.syntaxError();
    QCOMPARE(Admin(faulty).mySyntaxError(), block(typeProblem + referenceProblem));
    copy = faulty;
    QCOMPARE(copy.mySyntaxError(), block(typeProblem + referenceProblem));
}

void AdmincommandTest::reading_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("reference");

    const QString answer = QStringLiteral("42");
    QTest::newRow("the query first") << QStringLiteral("<QueryVersion/><Reference>42</Reference>") << answer;
    QTest::newRow("the reference first") << QStringLiteral("<Reference>42</Reference><QueryVersion/>") << answer;
    QTest::newRow("a query with an end tag")
        << QStringLiteral("<QueryVersion></QueryVersion><Reference>42</Reference>") << answer;
    QTest::newRow("no reference") << QStringLiteral("<QueryVersion/>") << QString();
    QTest::newRow("of several references the last one counts")
        << QStringLiteral("<Reference>1</Reference><QueryVersion/><Reference>2</Reference>"
                          "<Reference>42</Reference>")
        << answer;
    QTest::newRow("an empty reference leaves the one before")
        << QStringLiteral("<Reference>42</Reference><Reference/><QueryVersion/>") << answer;
    QTest::newRow("several queries") << QStringLiteral(
        "<QueryVersion/><QueryVersion/><Reference>42</Reference><QueryVersion/>")
                                     << answer;
    QTest::newRow("a reference inside the query")
        << QStringLiteral("<QueryVersion><Reference>42</Reference></QueryVersion>") << answer;
    QTest::newRow("a query inside the query")
        << QStringLiteral("<QueryVersion><QueryVersion/></QueryVersion><Reference>42</Reference>") << answer;
    QTest::newRow("text, comments and instructions anywhere")
        << QStringLiteral("text<!-- c --><QueryVersion>text<!-- c --></QueryVersion><?p i?>\n<![CDATA[x]]>"
                          "<Reference>42</Reference> ")
        << answer;
    QTest::newRow("attributes of the query")
        << QStringLiteral("<QueryVersion a=\"b\"/><Reference>42</Reference>") << answer;
}

void AdmincommandTest::reading()
{
    QFETCH(QString, content);
    QFETCH(QString, reference);

    auto command =
        readFrom<XmlCmdAdmin>(QStringLiteral("<Administrative version=\"2.0\">%1</Administrative>").arg(content));
    QCOMPARE(command.adminCmd(), XmlCmdAdmin::AdminQueryVersion);
    QCOMPARE(command.cmdReference().reference(), reference);
    QVERIFY(!command.hasOrderDef());
    QCOMPARE(command.isValid(), !reference.isEmpty());
    QCOMPARE(command.syntaxError(), reference.isEmpty() ? block(referenceProblem) : QString());
    QCOMPARE(
        written(command, adminTag),
        QStringLiteral("<Administrative><QueryVersion/><Reference>%1</Reference></Administrative>").arg(reference));
}

void AdmincommandTest::readerErrors_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("error");
    QTest::addColumn<bool>("query"); // whether the command is known all the same

    QTest::newRow("a reference alone")
        << QStringLiteral("<Administrative>\n<Reference>42</Reference>\n</Administrative>")
        << QStringLiteral("in XmlCmdAdmin (line 3, column 17): Unexpected token \"EndElement\".") << false;
    QTest::newRow("nothing") << QStringLiteral("<Administrative></Administrative>")
                             << QStringLiteral("in XmlCmdAdmin (line 1, column 33): Unexpected token \"EndElement\".")
                             << false;
    QTest::newRow("another child") << QStringLiteral("<Administrative>\n  <Other>")
                                   << QStringLiteral("in XmlCmdAdmin (line 2, column 9): Unexpected element "
                                                     "\"Other\".")
                                   << false;
    QTest::newRow("another child after the query")
        << QStringLiteral("<Administrative><QueryVersion/>\n<Other>")
        << QStringLiteral("in XmlCmdAdmin (line 2, column 7): Unexpected element \"Other\".") << true;
    QTest::newRow("the case of the query matters")
        << QStringLiteral("<Administrative>\n<queryVersion>")
        << QStringLiteral("in XmlCmdAdmin (line 2, column 14): Unexpected element \"queryVersion\".") << false;
    QTest::newRow("the case of the reference matters")
        << QStringLiteral("<Administrative>\n<reference>")
        << QStringLiteral("in XmlCmdAdmin (line 2, column 11): Unexpected element \"reference\".") << false;
    QTest::newRow("an envelope") << QStringLiteral("<Administrative>\n<ORDER_DEF>")
                                 << QStringLiteral("in XmlCmdAdmin (line 2, column 11): Unexpected element "
                                                   "\"ORDER_DEF\".")
                                 << false;
    QTest::newRow("a child inside the query")
        << QStringLiteral("<Administrative><QueryVersion>\n\n<x>")
        << QStringLiteral("in XmlCmdAdmin (line 3, column 3): Unexpected element \"x\".") << false;
    QTest::newRow("a child inside the reference")
        << QStringLiteral("<Administrative><QueryVersion/>\n<Reference><x>")
        << QStringLiteral("in XmlreferenceType (line 2, column 14): Unexpected token \"StartElement\".") << true;
    QTest::newRow("a premature end") << QStringLiteral("<Administrative>")
                                     << QStringLiteral("Premature end of document.") << false;
    QTest::newRow("a premature end inside the query")
        << QStringLiteral("<Administrative><QueryVersion>") << QStringLiteral("Premature end of document.") << false;
    QTest::newRow("an end tag that does not match") << QStringLiteral("<Administrative><QueryVersion></Administrative>")
                                                    << QStringLiteral("Opening and ending tag mismatch.") << false;
}

void AdmincommandTest::readerErrors()
{
    QFETCH(QString, xml);
    QFETCH(QString, error);
    QFETCH(bool, query);

    XmlCmdAdmin command;
    QCOMPARE(readError(command, xml), error);
    QCOMPARE(command.adminCmd(), query ? XmlCmdAdmin::AdminQueryVersion : XmlCmdAdmin::AdminUndefined);
    QVERIFY(!command.isValid());
    QVERIFY(!command.syntaxError().isEmpty());

    // It can be used on.
    QCOMPARE(XmlCmdAdmin(command).adminCmd(), command.adminCmd());
    QCOMPARE(readError(command, queryXml), QString());
    QCOMPARE(written(command, adminTag), queryXml);
    QVERIFY(command.isValid());
}

void AdmincommandTest::judgement()
{
    Admin command;
    command.setCmdReference(reference(QStringLiteral("42")));
    QVERIFY(!command.isValid());
    QCOMPARE(command.syntaxError(), block(typeProblem));
    QCOMPARE(command.syntaxError(), block(typeProblem));

    auto query = readFrom<Admin>(queryXml);
    QVERIFY(query.isValid());
    QCOMPARE(query.syntaxError(), QString());
    query.setCmdReference(reference(QString(50, QLatin1Char('r'))));
    QVERIFY(query.isValid());
    query.setCmdReference(reference(QString(51, QLatin1Char('r'))));
    QVERIFY(!query.isValid());
    QCOMPARE(query.syntaxError(),
             block(QStringLiteral("+++ in XmlreferenceType Begin:\n"
                                  "String too long (max. 50)\n"
                                  "--- in XmlreferenceType End\n")));
}

void AdmincommandTest::reset()
{
    auto command = readFrom<Admin>(queryXml);
    command.setOrderDef(envelope(QStringLiteral("host")));
    command.setCmdReference(XmlReferenceType());
    QVERIFY(!command.syntaxError().isEmpty());
    command.setCmdReference(reference(QStringLiteral("42")));
    command.reset();
    QCOMPARE(command.mySyntaxError(), QString());
    QCOMPARE(command.adminCmd(), XmlCmdAdmin::AdminUndefined);
    QCOMPARE(command.cmdReference().reference(), QString());
    QVERIFY(!command.hasOrderDef());
    QVERIFY(!command.isValid());
    QCOMPARE(written(command, adminTag), emptyXml);
    QCOMPARE(command.syntaxError(), Admin().syntaxError());
}

void AdmincommandTest::reuse()
{
    // Nothing is reset before reading, but the query must be seen again.
    auto command = readFrom<XmlCmdAdmin>(queryXml);
    command.setOrderDef(envelope(QStringLiteral("host")));
    const XmlReferenceType* heldReference = &command.cmdReference();
    QCOMPARE(readError(command, QStringLiteral("<Administrative><Reference>43</Reference></Administrative>")),
             QStringLiteral("in XmlCmdAdmin (line 1, column 58): Unexpected token \"EndElement\"."));
    QCOMPARE(command.adminCmd(), XmlCmdAdmin::AdminQueryVersion);
    QCOMPARE(command.cmdReference().reference(), QStringLiteral("43"));
    QCOMPARE(&command.cmdReference(), heldReference);
    QVERIFY(command.hasOrderDef());
    QVERIFY(command.isValid());
    QCOMPARE(readError(command, QStringLiteral("<Administrative><QueryVersion/></Administrative>")), QString());
    QCOMPARE(command.cmdReference().reference(), QStringLiteral("43"));
    QVERIFY(command.hasOrderDef());
}

void AdmincommandTest::positions()
{
    const QString xml = QStringLiteral("<Administrative>\n<QueryVersion/>\n<Reference>42</Reference></Administrative>");
    checkReadingFromElsewhere<XmlCmdAdmin>({
        QStringLiteral("XmlCmdAdmin"),
        adminTag,
        xml,
        emptyXml,
        QStringLiteral("in XmlCmdAdmin (line 1, column 16): Unexpected element \"Administrative\"."),
        QStringLiteral("in XmlCmdAdmin (line 3, column 42): Unexpected token \"EndDocument\"."),
        QStringLiteral("administrative"),
        QStringLiteral("in XmlCmdAdmin (line 3, column 42): Unexpected token \"EndElement\"."),
    });
}

void AdmincommandTest::underTheTagOfTheQuery()
{
    // With the query seen, the next end tag of that name is the command's own.
    QXmlStreamReader reader(QStringLiteral("<QueryVersion><QueryVersion/><QueryVersion/><Next/></QueryVersion>"));
    reader.readNextStartElement();
    XmlCmdAdmin command;
    command.processXml(reader, QStringLiteral("QueryVersion"));
    QVERIFY(!reader.hasError());
    QCOMPARE(command.adminCmd(), XmlCmdAdmin::AdminQueryVersion);
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.name().toString(), QStringLiteral("Next"));
}

QTEST_APPLESS_MAIN(AdmincommandTest)
#include "admincommand_test.moc"
