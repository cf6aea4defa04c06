#include "planning_client/models.h"

#include <QtCore/QXmlStreamWriter>

#include <cmath>
#include <functional>
#include <vector>

using namespace ArvXml;

namespace {

/// How one parameter of a set is set.
template <typename Set>
struct Parameter {
    const char* tag;
    QString expected; ///< what may be given
    /// Sets the value that a text stands for; false when it stands for none.
    std::function<bool(Set&, const QString&)> set;
    bool isWrittenAsRead = true;
};

template <typename Set>
Parameter<Set> real(const char* tag, void (Set::*setter)(double))
{
    return {tag, QStringLiteral("a number"), [setter](Set& set, const QString& text) {
                bool ok = false;
                const double value = text.toDouble(&ok);
                (set.*setter)(value);
                return ok && std::isfinite(value); // "nan" is read as a number, and is in every range
            }};
}

template <typename Set>
Parameter<Set> integer(const char* tag, void (Set::*setter)(int))
{
    return {tag, QStringLiteral("a whole number"), [setter](Set& set, const QString& text) {
                bool ok = false;
                (set.*setter)(text.toInt(&ok));
                return ok;
            }};
}

/// One of \a texts, of which the first has the value \a first.
template <typename Set, typename Choice>
Parameter<Set> choice(const char* tag, void (Set::*setter)(Choice), Choice first, const char* texts)
{
    const QString expected = QString::fromLatin1(texts);
    return {tag, expected, [=](Set& set, const QString& text) {
                const auto index = expected.split(QStringLiteral(" | ")).indexOf(text);
                (set.*setter)(static_cast<Choice>(first + index));
                return index >= 0;
            }};
}

template <typename Set>
Parameter<Set> notWrittenAsRead(Parameter<Set> parameter)
{
    parameter.isWrittenAsRead = false;
    return parameter;
}

/// A model and how its parameters are set.
struct Model {
    QString name;
    XmlPropModelEnumType::Model value;
    QString setTag;
    QStringList parameters; ///< in the order of the protocol
    QStringList notWrittenAsRead;
    /// Hands a set with these values to a command; returns what is wrong with them.
    std::function<QString(XmlPropModelType&, const QMap<QString, QString>&)> fill;
};

template <typename Set>
Model model(const char* name, XmlPropModelEnumType::Model value, const char* setTag,
            void (XmlPropModelType::*setter)(const Set&), const std::vector<Parameter<Set>>& parameters)
{
    Model result = {QString::fromLatin1(name), value, QString::fromLatin1(setTag), {}, {}, {}};
    for (const Parameter<Set>& parameter : parameters) {
        result.parameters.append(QString::fromLatin1(parameter.tag));
        if (!parameter.isWrittenAsRead)
            result.notWrittenAsRead.append(result.parameters.last());
    }
    result.fill = [setter, parameters](XmlPropModelType& command, const QMap<QString, QString>& values) {
        Set set;
        for (const Parameter<Set>& parameter : parameters) {
            const QString tag = QString::fromLatin1(parameter.tag);
            if (values.contains(tag) && !parameter.set(set, values[tag]))
                return QStringLiteral("%1 cannot be \"%2\", only %3").arg(tag, values[tag], parameter.expected);
        }
        (command.*setter)(set);
        return QString();
    };
    return result;
}

// The texts of choices. Some models have none for "undefined": there the first text has the value 1.
constexpr const char* switches = "Off | On";
constexpr const char* grounds = "Average Ground | Poor Ground | Good Ground | Fresh Water | Sea Water";
constexpr const char* paths = "Undefined | Land | Cold Sea | Warm Sea";
constexpr const char* surroundings = "Undefined | Open | Suburban | Warm Sea"; // so says the protocol
constexpr const char* climates = "Equatorial | Continental Subtropical | Maritime Tropical | Desert | "
                                 "Continental Temperate | Maritime Temperate, Land | Maritime Temperate, Sea";

/// The table of the models.
const std::vector<Model>& models()
{
    using Command = XmlPropModelType;
    using Selection = XmlPropModelEnumType;
    using FS = XmlPropModelFSType;
    using OLOS = XmlPropModelOLOSType;
    using ITM = XmlPropModelITMType;
    using P452 = XmlPropModelP452Type;
    using P1546 = XmlPropModelP1546Type;
    using P526 = XmlPropModelP526Type;
    using P533 = XmlPropModelP533Type;
    using Hata = XmlPropModelHataType;
    static const std::vector<Model> table = {
        model("Free-space", Selection::ModelFreespace, "PropertiesFreespace", &Command::setFreespace,
              {real("K-factor", &FS::setKfactor)}),
        model("OLOS", Selection::ModelOLOS, "PropertiesOLOS", &Command::setOLOS,
              {real("K-factor", &OLOS::setKfactor), real("MaxRange_km", &OLOS::setMaxRange_km)}),
        model("ITM", Selection::ModelITM, "PropertiesITM", &Command::setITM,
              {real("RRI", &ITM::setRRI), choice("Pol", &ITM::setPol, ITM::PolarisationH, "H | V"),
               choice("Climate", &ITM::setClimate, ITM::ClimateEquatorial, climates),
               notWrittenAsRead(choice("Surface", &ITM::setSurface, ITM::SurfaceAverageGround, grounds)),
               real("Conf", &ITM::setConf), real("Time", &ITM::setTime)}),
        model("P.452", Selection::ModelP452, "PropertiesP452", &Command::setP452,
              {real("DeltaN", &P452::setDeltaN), integer("SurfaceRefract", &P452::setSurfaceRefract),
               real("TimePct", &P452::setTimePct), integer("Pressure_hPa", &P452::setPressure_hPa),
               integer("Temp_C", &P452::setTemp_C), real("OverWater_km", &P452::setOverWater_km),
               real("InlandCoastal_km", &P452::setInlandCoastal_km), real("Inland_km", &P452::setInland_km),
               real("DistTxCoast_km", &P452::setDistTxCoast_km), real("DistRxCoast_km", &P452::setDistRxCoast_km)}),
        model("P.1546", Selection::ModelP1546, "PropertiesP1546", &Command::setP1546,
              {real("K-factor", &P1546::setKfactor), real("TimePct", &P1546::setTime),
               choice("PropPathType", &P1546::setPath, P1546::PathUndefined, paths), real("LocVar", &P1546::setLocVar),
               real("BoardAntGain", &P1546::setBroadAntGAin),
               choice("RxAntEnviro", &P1546::setRxAntE, P1546::EnvironmentUndefined, surroundings),
               choice("AvgAreaEnviro", &P1546::setAvgAreaE, P1546::EnvironmentUndefined, surroundings),
               choice("PathCorrection", &P1546::setCorrection, P1546::SwitchOff, switches),
               choice("PathTypeForBroadAnt", &P1546::setBroadAnt, P1546::PathUndefined, paths),
               choice("PathTypeForRxAnt", &P1546::setRxAnt, P1546::PathUndefined, paths)}),
        model(
            "P.526", Selection::ModelP526, "PropertiesP526", &Command::setP526,
            {real("K-factor", &P526::setKfactor),
             notWrittenAsRead(choice("Pol", &P526::setPol, P526::PolarisationHorizontal, "Horizontal | Vertical")),
             notWrittenAsRead(choice("Surface", &P526::setSurf, P526::SurfaceAverageGround, grounds)),
             notWrittenAsRead(choice("AssumeSmoothEarth", &P526::setSmooth, P526::SwitchOff, switches)),
             notWrittenAsRead(choice("IncludeSubPathDiffractionLoss", &P526::setSubPath, P526::SwitchOff, switches))}),
        model("P.533", Selection::ModelP533, "PropertiesP533", &Command::setP533,
              {real("K-factor", &P533::setKfactor), real("SmoothedSunSpotNumber", &P533::setSunSpots)}),
        model("Okumura-Hata", Selection::ModelOkumuraHata, "PropertiesOkumura", &Command::setHata,
              {notWrittenAsRead(real("K-factor", &Hata::setKfactor)),
               choice("AreaType", &Hata::setAreaType, Hata::AreaUrban, "Urban | Suburban | Open rural"),
               choice("CitySize", &Hata::setCitySize, Hata::SizeSmall, "Small | Medium | Large")}),
    };
    return table;
}

const Model* find(const QString& name)
{
    for (const Model& model : models()) {
        if (model.name == name)
            return &model;
    }
    return nullptr;
}

QString names()
{
    QStringList list;
    for (const Model& model : models())
        list.append(model.name);
    return list.join(QStringLiteral(", "));
}

} // namespace

ModelChoice::ModelChoice(const QStringList& words, const XmlReferenceType& reference)
    : m_name(words.value(0))
    , m_command(true)
{
    const Model* model = find(m_name);
    if (!model) {
        m_problem = QStringLiteral("There is no model \"%1\". The models: %2").arg(m_name, names());
        return;
    }
    const QStringList settings = words.mid(1);
    for (const QString& word : settings) {
        const QString parameter = word.section(QLatin1Char('='), 0, 0);
        if (!model->parameters.contains(parameter)) {
            m_problem = QStringLiteral("%1 has no parameter \"%2\". Its parameters: %3")
                            .arg(m_name, parameter, model->parameters.join(QStringLiteral(", ")));
            return;
        }
        if (m_values.contains(parameter)) {
            m_problem = QStringLiteral("%1 is given twice.").arg(parameter);
            return;
        }
        m_values[parameter] = word.section(QLatin1Char('='), 1);
    }

    XmlPropModelEnumType selection;
    selection.setModel(model->value);
    m_command.setModel(selection);
    m_command.setCmdReference(reference);
    if (!m_values.isEmpty())
        m_problem = model->fill(m_command, m_values);
    if (m_problem.isEmpty() && !m_command.isValid())
        m_problem = m_command.syntaxError();
}

void ModelChoice::write(QXmlStreamWriter& writer) const
{
    for (const QString& parameter : find(m_name)->notWrittenAsRead) {
        if (m_values.contains(parameter)) {
            writeAsRead(writer);
            return;
        }
    }
    m_command.produceXml(writer, QStringLiteral("PropagationModel"));
}

/// Some parameters are written otherwise than they are read, and the service would refuse or misread them:
/// P.526 writes labels with blanks as tags, Okumura-Hata writes its K-factor under the tag of the set, and
/// ITM chooses the text of the surface by the climate. A set with one of them is written here, with the
/// tags and texts that are read.
void ModelChoice::writeAsRead(QXmlStreamWriter& writer) const
{
    const Model& model = *find(m_name);
    writer.writeStartElement(QStringLiteral("PropagationModel"));
    m_command.model()->produceXml(writer, QStringLiteral("SelectModel"));
    writer.writeStartElement(model.setTag);
    for (const QString& parameter : model.parameters) {
        if (m_values.contains(parameter))
            writer.writeTextElement(parameter, m_values[parameter]);
    }
    writer.writeEndElement();
    m_command.cmdReference().produceXml(writer, QStringLiteral("Reference"));
    writer.writeEndElement();
}
