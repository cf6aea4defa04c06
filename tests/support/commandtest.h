#pragma once

#include "support/elementtest.h"
#include "support/values.h"

/// \file
/// What the tests of the commands share.

namespace CommandTest {

/// What is reported of a command's reference that has no text.
inline const QString referenceProblem = QStringLiteral("+++ in XmlreferenceType Begin:\n"
                                                       "String too short (min. 1)\n"
                                                       "--- in XmlreferenceType End\n");
/// What is reported of a command that does not hold just one child.
inline const QString countProblem = QStringLiteral("Too many or too few elements.\n");

/// A reference is assigned into the one that is held, also that one itself.
template <typename Command>
void checkReferenceAccessors(Command& command)
{
    const ArvXml::XmlReferenceType* heldReference = &command.cmdReference();
    command.setCmdReference(TestValues::reference(QStringLiteral("42")));
    QCOMPARE(&command.cmdReference(), heldReference);
    QCOMPARE(command.cmdReference().reference(), QStringLiteral("42"));
    command.setCmdReference(command.cmdReference());
    QCOMPARE(command.cmdReference().reference(), QStringLiteral("42"));
}

/// An envelope is copied, a second one assigned into the first, also that one itself.
template <typename Command>
void checkEnvelopeAccessors(Command& command)
{
    const ArvXml::XmlOrderDef given = TestValues::envelope(QStringLiteral("host"));
    command.setOrderDef(given);
    QVERIFY(command.hasOrderDef());
    const ArvXml::XmlOrderDef* held = command.orderDef();
    QVERIFY(held != &given);
    QCOMPARE(held->orderId(), QStringLiteral("ARV240305140709042"));
    command.setOrderDef(TestValues::envelope(QStringLiteral("other")));
    QCOMPARE(command.orderDef(), held);
    QCOMPARE(held->orderSender(), QStringLiteral("other"));
    command.setOrderDef(*held);
    QCOMPARE(command.orderDef()->orderSender(), QStringLiteral("other"));
}

} // namespace CommandTest
