// A program outside the library's project: one class by its own header, one by its family's.
#include <arvxml/XmlFreqType>
#include <arvxml/geometry.h>

#include <QXmlStreamWriter>

#include <cstdio>

int main()
{
    ArvXml::XmlFreqType frequency;
    frequency.setFrequency_MHz(2.4);
    frequency.setUnit(QStringLiteral("kHz"));
    QString xml;
    QXmlStreamWriter writer(&xml);
    frequency.produceXml(writer, QStringLiteral("Frequency"));
    std::puts(qPrintable(xml));
    return ArvXml::XmlAreaPolyType().vertices().isEmpty() ? 0 : 1;
}
