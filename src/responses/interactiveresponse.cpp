#include "arvxml/interactiveresponse.h"

#include "core/elementform.h"

namespace ArvXml {

// A result object

XmlResultObjectType::XmlResultObjectType()
    : XmlComposite(QStringLiteral("XmlResultObjectType"))
{
}

const ElementForm& XmlResultObjectType::form() const
{
    using Self = XmlResultObjectType;
    enum : Marks { Object = 1 };
    // It words start tags as lists do and end tags as composites do.
    static constexpr Wording wording = {listWording.start, compositeWording.end};
    // Nothing completes it: its own end tag is refused like any other.
    static const ElementForm form = ElementForm(wording).children({
        {"Station", Object, Object, renewed<&Self::m_station>()},
        {"Emitter", Object, Object, renewed<&Self::m_emitter>()},
        {"Receiver", Object, Object, renewed<&Self::m_receiver>()},
        {"DF", Object, Object, renewed<&Self::m_df>()},
    });
    return form;
}

// An interactive response

XmlInteractRespType::XmlInteractRespType()
    : XmlComposite(QStringLiteral("XmlInteractRespType"))
{
}

const ElementForm& XmlInteractRespType::form() const
{
    using Self = XmlInteractRespType;
    enum : Marks { Item = 1 };
    static const ElementForm form = ElementForm(compositeWording)
                                        .children({
                                            {"GridResult", Item, Item, renewed<&Self::m_gridResult>()},
                                            {"InterlinkResult", Item, Item, renewed<&Self::m_interlinkResult>()},
                                            {"Station", Item, Item, renewed<&Self::m_result>()},
                                        })
                                        .completeWith(Item);
    return form;
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
