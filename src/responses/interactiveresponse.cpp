#include "arvxml/interactiveresponse.h"

#include "core/contentmodel.h"

namespace ArvXml {

// A result object

XmlResultObjectType::XmlResultObjectType()
    : XmlComposite(QStringLiteral("XmlResultObjectType"))
{
}

const ContentModel& XmlResultObjectType::contentModel() const
{
    using Self = XmlResultObjectType;
    // It words start tags as lists do and end tags as composites do.
    static constexpr Wording wording = {listWording.start, compositeWording.end};
    static const NeverDestroyed<ContentModel> model = ContentModel(wording)
                                                          .sequence({oneOf({
                                                              {"Station", renewed<&Self::m_station>()},
                                                              {"Emitter", renewed<&Self::m_emitter>()},
                                                              {"Receiver", renewed<&Self::m_receiver>()},
                                                              {"DF", renewed<&Self::m_df>()},
                                                          })})
                                                          .neverComplete(); // its own end tag is refused like any other
    return model;
}

// An interactive response

XmlInteractRespType::XmlInteractRespType()
    : XmlComposite(QStringLiteral("XmlInteractRespType"))
{
}

const ContentModel& XmlInteractRespType::contentModel() const
{
    using Self = XmlInteractRespType;
    static const NeverDestroyed<ContentModel> model = ContentModel(compositeWording)
                                                          .sequence({oneOf({
                                                              {"GridResult", renewed<&Self::m_gridResult>()},
                                                              {"InterlinkResult", renewed<&Self::m_interlinkResult>()},
                                                              {"Station", renewed<&Self::m_result>()},
                                                          })});
    return model;
}

bool XmlInteractRespType::isValid() const
{
    return heldChildren() == 1 && XmlComposite::isValid();
}

void XmlInteractRespType::addErrors()
{
    addChildrenErrors();
    if (heldChildren() != 1)
        addSyntaxError(QStringLiteral("Illegal number of elements"));
}

} // namespace ArvXml
