#pragma once

#include "random.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QXmlStreamWriter>

namespace Bench {

/// Writes the planning objects of generated documents: in the shape that the library reads, with the
/// decimals that it writes, and with values that are valid.
class PlanWriter {
public:
    explicit PlanWriter(quint32 seed);
    Q_DISABLE_COPY(PlanWriter)

    Random& random() { return m_random; }
    /// How much is written.
    qint64 size() const { return m_document.size(); }
    /// Ends the document and returns it.
    QByteArray finish();

    void open(const char* tag);
    void openVersioned(const char* tag);
    void attribute(const char* name, const QString& value);
    void close() { m_writer.writeEndElement(); }
    void text(const char* tag, const QString& text);
    void quantity(const char* tag, const QString& number, const char* unit);

    /// The envelope of an order.
    void envelope();
    /// A reference, another each time.
    void reference(const char* tag);
    /// A name of a place, such as "Tower Northern Valley 17".
    QString placeName();

    void deploymentArea(const char* tag, int vertices);
    void areaOfInterest(const char* tag, int vertices);
    void station(const char* tag);
    void receiver(const char* tag);
    void emitter(const char* tag);
    void directionFinder(const char* tag);
    void signalPath(const char* tag);
    /// A device with so many values in each of its lists.
    void device(const char* tag, int values);
    void resultRecord(const char* tag);

    /// The region of an area: a rectangle without vertices, else a polygon.
    void region(int vertices);
    void vertex(int number, int longitude, int latitude);
    void txParameter();

private:
    /// One of the sets of lists that a device may have, chosen by \a set, of \a count values each.
    void deviceLists(int set, int count);
    void frequencies(int count);
    void values(const char* tag, const char* item, const char* unit, int count, int decimals);
    void lengthsByKey(const char* tag);
    /// A position in millionths of a degree.
    void position(const char* tag, int longitude, int latitude);
    void rxParameter();
    void interlink();
    void antennaHeight();
    void threshold();
    void frequency();
    void power();
    void directionFinderPrecision();

    Random m_random;
    QByteArray m_document;
    QXmlStreamWriter m_writer;
    int m_lastReference = 0;
};

} // namespace Bench
