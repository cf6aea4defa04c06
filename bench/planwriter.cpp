#include "planwriter.h"

namespace Bench {

namespace {

/// As the library writes a number with so many decimals.
QString decimal(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

} // namespace

PlanWriter::PlanWriter(quint32 seed)
    : m_random(seed)
    , m_writer(&m_document)
{
    m_writer.writeStartDocument();
}

QByteArray PlanWriter::finish()
{
    m_writer.writeEndDocument();
    return m_document;
}

// Tags and texts

void PlanWriter::open(const char* tag)
{
    m_writer.writeStartElement(QString::fromLatin1(tag));
}

void PlanWriter::openVersioned(const char* tag)
{
    open(tag);
    attribute("version", QStringLiteral("1.0"));
}

void PlanWriter::attribute(const char* name, const QString& value)
{
    m_writer.writeAttribute(QString::fromLatin1(name), value);
}

void PlanWriter::text(const char* tag, const QString& text)
{
    m_writer.writeTextElement(QString::fromLatin1(tag), text);
}

void PlanWriter::quantity(const char* tag, const QString& number, const char* unit)
{
    openVersioned(tag);
    attribute("unit", QString::fromUtf8(unit));
    m_writer.writeCharacters(number);
    close();
}

void PlanWriter::envelope()
{
    open("ORDER_DEF");
    text("ORDER_ID", QStringLiteral("ARV240305140709042"));
    text("ORDER_SENDER", QStringLiteral("planning-desk-2"));
    close();
}

void PlanWriter::reference(const char* tag)
{
    text(tag, QStringLiteral("ref-%1").arg(++m_lastReference));
}

QString PlanWriter::placeName()
{
    static const char* const kinds[] = {"Tower", "Relay", "Mast", "Site", "Van", "Post", "Station"};
    static const char* const places[] = {"Ridge South",     "Harbour Hills", "Inland Plateau", "Coast Strip",
                                         "Northern Valley", "Lighthouse",    "Water Works",    "Zürich Nord",
                                         "Quarry",          "Old Airfield"};
    return QStringLiteral("%1 %2 %3")
        .arg(QString::fromUtf8(m_random.among(kinds)), QString::fromUtf8(m_random.among(places)))
        .arg(m_random.between(1, 999));
}

// Areas

void PlanWriter::deploymentArea(const char* tag, int vertices)
{
    openVersioned(tag);
    if (vertices == 0 && m_random.oneIn(3))
        signalPath("SignalPath");
    text("Name", placeName());
    region(vertices);
    antennaHeight();
    threshold();
    frequency();
    power();
    close();
}

void PlanWriter::areaOfInterest(const char* tag, int vertices)
{
    openVersioned(tag);
    text("Name", placeName());
    region(vertices);
    txParameter();
    if (m_random.oneIn(2))
        threshold();
    close();
}

void PlanWriter::region(int vertices)
{
    int longitude = m_random.between(-170000000, 170000000);
    int latitude = m_random.between(-80000000, 80000000);
    if (vertices == 0) {
        openVersioned("AreaRect");
        position("UpperLeft", longitude, latitude);
        position("LowerRight", longitude + m_random.between(10000, 900000), latitude - m_random.between(10000, 900000));
        close();
        return;
    }
    openVersioned("AreaPolygon");
    for (int number = 0; number < vertices; ++number) {
        longitude += m_random.between(-4000, 4000);
        latitude += m_random.between(-4000, 4000);
        vertex(number, longitude, latitude);
    }
    close();
}

void PlanWriter::vertex(int number, int longitude, int latitude)
{
    openVersioned("Vertex");
    attribute("number", QString::number(number));
    text("Longitude", decimal(longitude / 1e6, 6));
    text("Latitude", decimal(latitude / 1e6, 6));
    close();
}

void PlanWriter::position(const char* tag, int longitude, int latitude)
{
    openVersioned(tag);
    text("Longitude", decimal(longitude / 1e6, 6));
    text("Latitude", decimal(latitude / 1e6, 6));
    close();
}

// Sites

void PlanWriter::station(const char* tag)
{
    open(tag);
    text("Name", placeName());
    if (m_random.oneIn(2))
        signalPath("SignalPath");
    position("Position", m_random.between(5000000, 15000000), m_random.between(45000000, 55000000));
    if (m_random.oneIn(2))
        rxParameter();
    if (m_random.oneIn(3))
        directionFinderPrecision();
    if (m_random.oneIn(2))
        interlink();
    close();
}

void PlanWriter::receiver(const char* tag)
{
    openVersioned(tag);
    text("Name", placeName());
    position("Position", m_random.between(5000000, 15000000), m_random.between(45000000, 55000000));
    rxParameter();
    if (m_random.oneIn(3))
        interlink();
    close();
}

void PlanWriter::emitter(const char* tag)
{
    openVersioned(tag);
    text("Name", placeName());
    position("Position", m_random.between(5000000, 15000000), m_random.between(45000000, 55000000));
    txParameter();
    close();
}

void PlanWriter::directionFinder(const char* tag)
{
    openVersioned(tag);
    text("Name", placeName());
    position("Position", m_random.between(5000000, 15000000), m_random.between(45000000, 55000000));
    rxParameter();
    directionFinderPrecision();
    if (m_random.oneIn(3))
        interlink();
    close();
}

// The parameters of sites

void PlanWriter::txParameter()
{
    openVersioned("TxParameter");
    frequency();
    power();
    antennaHeight();
    static const int bandwidths[] = {3, 6, 12, 25, 200, 1500, 20000};
    quantity("Bandwidth", QString::number(m_random.among(bandwidths)), "kHz");
    close();
}

void PlanWriter::rxParameter()
{
    openVersioned("RxParameter");
    antennaHeight();
    threshold();
    close();
}

void PlanWriter::interlink()
{
    openVersioned("StationInterlink");
    frequency();
    power();
    threshold();
    antennaHeight();
    close();
}

void PlanWriter::antennaHeight()
{
    quantity("AntennaHeight", QString::number(m_random.between(2, 150)), "m");
}

void PlanWriter::threshold()
{
    // Most are whole or half, some have tenths, which binary numbers do not meet: many digits.
    const int tenths = m_random.oneIn(3) ? m_random.between(700, 1150) : 5 * m_random.between(140, 230);
    quantity("RxThreshold", decimal(tenths / -10.0, 15), "dBm");
}

void PlanWriter::frequency()
{
    static const char* const units[] = {"MHz", "MHz", "MHz", "kHz", "GHz"};
    quantity("Frequency", decimal(m_random.between(1600, 8000000) / 1000.0, 6), m_random.among(units));
}

void PlanWriter::power()
{
    static const double powers[] = {0.1, 0.5, 1.0, 2.5, 10.0, 12.5, 25.0, 50.0, 100.0};
    quantity("TxPower", decimal(m_random.among(powers), 15), "W");
}

void PlanWriter::directionFinderPrecision()
{
    quantity("DFprecision", QString::number(m_random.between(1, 5)), "°");
}

// Signal paths and devices

void PlanWriter::signalPath(const char* tag)
{
    openVersioned(tag);
    text("Name", placeName());
    openVersioned("SINAD");
    m_writer.writeCharacters(decimal(m_random.between(16, 40) / 2.0, 6));
    close();
    openVersioned("Device");
    const int devices = m_random.between(1, 3);
    for (int i = 0; i < devices; ++i)
        device("Device", m_random.between(3, 10));
    close();
    if (m_random.oneIn(2))
        lengthsByKey("AntHgtMap");
    if (m_random.oneIn(2))
        lengthsByKey("CabLenMap");
    close();
}

void PlanWriter::lengthsByKey(const char* tag)
{
    openVersioned(tag);
    const int entries = m_random.between(1, 4);
    for (int key = 1; key <= entries; ++key) {
        openVersioned("Map");
        text("Key", QString::number(key));
        quantity("Value", QString::number(m_random.between(1, 60)), "m");
        close();
    }
    close();
}

void PlanWriter::device(const char* tag, int values)
{
    static const char* const categories[] = {"Receiver", "ActiveAntennas", "DF", "PassiveAntennas", "Cable"};
    static const char* const names[] = {"Receiver wideband", "Active dipole", "DF array, nine elements",
                                        "Discone antenna", "Cable, low loss"};
    const int set = m_random.below(5);
    openVersioned(tag);
    text("DeviceCategory", QString::fromLatin1(categories[set]));
    text("Name", QStringLiteral("%1 %2").arg(QString::fromLatin1(names[set])).arg(m_random.between(1, 9999)));
    frequencies(values);
    deviceLists(set, values);
    close();
}

void PlanWriter::deviceLists(int set, int count)
{
    // The factors come last where there are four lists: the only order that is read.
    if (set <= 2)
        values("Noises", "Decibel", "dB", count, 6);
    if (set == 1)
        values("Gains", "Decibel", "dB", count, 6);
    if (set == 2)
        values("Degrees", "Degrees", "°", count, 1);
    if (set == 1 || set == 2)
        values("DBM", "dBm", "dBm", count, 9);
    if (set == 1 || set == 2 || set == 3)
        values("KFactors", "Decibel", "dB", count, 6);
    if (set == 4)
        values("Attenuations", "Decibel", "dB", count, 6);
}

void PlanWriter::frequencies(int count)
{
    openVersioned("Frequencies");
    int kilohertz = m_random.between(20000, 40000);
    for (int i = 0; i < count; ++i) {
        quantity("Frequency", decimal(kilohertz / 1000.0, 6), "MHz");
        kilohertz += 25 * m_random.between(100, 1000);
    }
    close();
}

void PlanWriter::values(const char* tag, const char* item, const char* unit, int count, int decimals)
{
    openVersioned(tag);
    for (int i = 0; i < count; ++i)
        quantity(item, decimal(m_random.between(1, 800) / 20.0, decimals), unit);
    close();
}

// Results

void PlanWriter::resultRecord(const char* tag)
{
    static const char* const spacings[] = {"10", "50", "100", "200", "500", "1000"};
    static const char* const units[] = {"km", "%", "dB"};
    openVersioned(tag);
    text("Name", placeName());
    region(m_random.oneIn(2) ? 0 : m_random.between(4, 40));
    text("ResultGrid", QString::fromLatin1(m_random.among(spacings)));
    openVersioned("Values");
    attribute("unit", QString::fromLatin1(m_random.among(units)));
    text("Min", QString::number(m_random.between(-2000, 100) / 64.0, 'g', 6));
    text("Max", QString::number(m_random.between(101, 9000) / 64.0, 'g', 6));
    close();
    close();
}

} // namespace Bench
