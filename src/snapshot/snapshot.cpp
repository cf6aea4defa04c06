#include "arvxml/snapshot.h"

#include "core/contentmodel.h"
#include "core/versions.h"

#include <QtCore/QXmlStreamWriter>

namespace ArvXml {

namespace {

constexpr char pathTag[] = "ScreenshotPath";
constexpr char objectsTag[] = "DisplayedObjects";

/// Inside the tag of the path, and after text in it; inside the tag of the objects, and after its end tag.
enum SnapshotMarks : Marks { InPath = 1, PathRead = 2, InObjects = 4, ObjectsDone = 8 };

/// The path counts as read once it holds text, even white space.
Marks takePath(XmlElementBase& owner, ElementReader& in, Marks read)
{
    if ((read & InPath) == 0)
        return 0;
    static_cast<XmlArvBtType&>(owner).setScreenshotPath(detachedCopy(in.stream().text()));
    return PathRead;
}

} // namespace

XmlArvBtType::XmlArvBtType()
    : XmlVersionedComposite(QStringLiteral("XmlArvBtType"))
{
}

const ContentModel& XmlArvBtType::contentModel() const
{
    using Self = XmlArvBtType;
    // Odd: the path is taken from the characters between its tags. Without any, the objects are refused, and the path
    // may come again. The tag around the objects may be opened again while it is open.
    static const NeverDestroyed<ContentModel> model =
        ContentModel(leafWording)
            .rows({
                Row(pathTag, as(ContentKind::Text, entered())).required().marks(InPath).refusedAfter(InPath | PathRead),
                Row(objectsTag, entered())
                    .required()
                    .marks(InObjects)
                    .refusedAfter(InPath | ObjectsDone)
                    .onlyAfter(PathRead),
            })
            .within(objectsTag, InObjects,
                    {
                        repeated("DeploymentArea", items<&Self::m_deployments>()),
                        repeated("AreaOfInterest", items<&Self::m_aois>()),
                        repeated("KnownEmitter", items<&Self::m_knownEmitters>()),
                        repeated("Receiver", items<&Self::m_receivers>()),
                        repeated("DirectionFinder", items<&Self::m_dfs>()),
                        repeated("Result_FindSites", items<&Self::m_resFindSite>()),
                        repeated("Result_CEP", items<&Self::m_resCep>()),
                        repeated("Result_DetectProb", items<&Self::m_resDetectProb>()),
                        repeated("Result_DfCoverage", items<&Self::m_resDfCov>()),
                    })
            .onCharacters(takePath)
            .wrapperEnds({
                WrapperEnd(pathTag).onlyAfter(InPath).clears(InPath),
                WrapperEnd(objectsTag).onlyAfter(InObjects).clears(InObjects).marks(ObjectsDone),
            })
            .completeWith(PathRead | ObjectsDone)
            .refusesOtherVersions();
    return model;
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
    addSyntaxError(versionError(version()));
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
