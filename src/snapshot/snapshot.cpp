#include "arvxml/snapshot.h"

#include "core/elementform.h"

#include <QtCore/QXmlStreamWriter>

namespace ArvXml {

namespace {

constexpr char pathTag[] = "ScreenshotPath";
constexpr char objectsTag[] = "DisplayedObjects";

/// The path's and the objects' state, then a mark for each kind of object, in their order.
enum SnapshotMarks : Marks {
    InPath = 1,
    PathRead = 2,
    InObjects = 4,
    ObjectsDone = 8,
    Deployment = 16,
    Aoi = 32,
    Emitter = 64,
    Receiver = 128,
    Df = 256,
    FindSites = 512,
    Cep = 1024,
    DetectProb = 2048,
    DfCov = 4096,
};

/// One kind of object: among the displayed ones, before every kind that comes later.
Row kind(const char* tag, SnapshotMarks mark, const Content& objects)
{
    const Marks laterKinds = ~(2 * Marks(mark) - 1);
    return {tag, mark, laterKinds, objects, InObjects};
}

/// The path is read once it holds text, be it white space.
Marks takePath(XmlElementBase& owner, ElementReader& in, Marks read)
{
    if ((read & InPath) == 0)
        return 0;
    static_cast<XmlArvBtType&>(owner).setScreenshotPath(keptText(in.stream().text()));
    return PathRead;
}

} // namespace

XmlArvBtType::XmlArvBtType()
    : XmlVersionedComposite(QStringLiteral("XmlArvBtType"))
{
}

const ElementForm& XmlArvBtType::form() const
{
    using Self = XmlArvBtType;
    static const NeverDestroyed<ElementForm> form =
        ElementForm(leafWording)
            .children({
                {pathTag, InPath, PathRead | InPath, entered()},
                {objectsTag, InObjects, InPath | ObjectsDone, entered(), PathRead},
                kind("DeploymentArea", Deployment, items<&Self::m_deployments>()),
                kind("AreaOfInterest", Aoi, items<&Self::m_aois>()),
                kind("KnownEmitter", Emitter, items<&Self::m_knownEmitters>()),
                kind("Receiver", Receiver, items<&Self::m_receivers>()),
                kind("DirectionFinder", Df, items<&Self::m_dfs>()),
                kind("Result_FindSites", FindSites, items<&Self::m_resFindSite>()),
                kind("Result_CEP", Cep, items<&Self::m_resCep>()),
                kind("Result_DetectProb", DetectProb, items<&Self::m_resDetectProb>()),
                kind("Result_DfCoverage", DfCov, items<&Self::m_resDfCov>()),
            })
            .onCharacters(takePath)
            .innerEnds({
                {pathTag, InPath, InPath, 0},
                {objectsTag, InObjects, InObjects, ObjectsDone},
            })
            .completeWith(PathRead | ObjectsDone)
            .refusesOtherVersions();
    return form;
}

void XmlArvBtType::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeStartElement(tagName);
    writeAttributes(writer);
    writer.writeTextElement(QString::fromLatin1(pathTag), m_screenshotPath);
    writer.writeStartElement(QString::fromLatin1(objectsTag));
    writeChildren(writer);
    writer.writeEndElement();
    writer.writeEndElement();
}

bool XmlArvBtType::isValid() const
{
    return !m_screenshotPath.isEmpty() && XmlVersionedComposite::isValid();
}

void XmlArvBtType::addErrors()
{
    addSyntaxError(versionError());
    if (m_screenshotPath.isEmpty())
        addSyntaxError(QStringLiteral("Screen shot path is empty"));
    addChildrenErrors();
}

void XmlArvBtType::reset()
{
    m_screenshotPath.clear();
    XmlVersionedComposite::reset();
}

} // namespace ArvXml
