#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// What the user wants to order.
struct Wish {
    QString kind; ///< interlink, cep, detect, dfcov, bestsensor, findsites, model or version
    /// Two objects to link, or sensors, or deployment areas; none for all. Of a propagation model: its name
    /// and any PARAMETER=VALUE.
    QStringList names;
    QStringList areas; ///< areas of interest; none for all
    QString reference;
    QString grid;               ///< spacing of the result grid, empty for the service's choice
    QString probability;        ///< level of a circular error in percent, empty for the service's choice
    int randomEmitters = -1;    ///< -1 for none
    bool emittersOnGrid = true; ///< how random emitters are placed
};

/// An order ready to be sent.
struct Order {
    QString id; ///< the identifier in the envelope, by which answers are recognised
    QByteArray document;
    int commandCount = 1; ///< each gets a final answer
    QString problem;      ///< why there is no document
};

Order makeOrder(const Wish& wish);
