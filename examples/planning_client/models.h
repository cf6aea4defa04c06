#pragma once

#include <arvxml/propmodel.h>

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

class QXmlStreamWriter;

/// The command to choose a propagation model, from the words of a user. Numbers that the library writes are
/// rounded to the decimals of the protocol.
class ModelChoice {
public:
    /// \a words are the model's name and any number of PARAMETER=VALUE, in any order.
    ModelChoice(const QStringList& words, const ArvXml::XmlReferenceType& reference);

    /// Why there is no command, empty when there is one.
    const QString& problem() const { return m_problem; }
    void write(QXmlStreamWriter& writer) const;

private:
    void writeAsRead(QXmlStreamWriter& writer) const;

    QString m_name;
    QMap<QString, QString> m_values; ///< by parameter
    ArvXml::XmlPropModelType m_command;
    QString m_problem;
};
