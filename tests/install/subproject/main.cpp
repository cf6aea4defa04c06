// Writes a document and reads it back, with names that are keywords to Qt unless a program forbids it.
#include <arvxml/arvxml.h>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cstdio>

int main()
{
    ArvXml::XmlFreqType signals;
    signals.setFrequency_MHz(2.4);
    signals.setUnit(QStringLiteral("kHz"));
    QString xml;
    QXmlStreamWriter emit(&xml);
    signals.produceXml(emit, QStringLiteral("Frequency"));

    QXmlStreamReader slots(xml);
    slots.readNextStartElement();
    ArvXml::XmlFreqType foreach;
    foreach
        .processXml(slots, QStringLiteral("Frequency"));
    std::puts(qPrintable(xml));
    std::puts(foreach.isValid() && !slots.hasError() ? "valid" : qPrintable(slots.errorString()));
}
