#include "arvxml/devices.h"

#include "core/elementform.h"
#include "core/enumeration.h"

namespace ArvXml {

XmlDeviceCategoryType::XmlDeviceCategoryType()
    : XmlEnumeration(QStringLiteral("XmlDeviceCategoryType"))
{
}

const EnumerationRules& XmlDeviceCategoryType::rules() const
{
    static const NeverDestroyed<EnumerationRules> rules = EnumerationRules{
        EnumerationTexts({"Receiver", "PassiveAntennas", "Cable", "Other", "ActiveAntennas", "DF"}),
        "Illegal enum value.",
        "Illegal Device Category.",
    };
    return rules;
}

// A device

XmlDeviceType::XmlDeviceType()
    : XmlVersionedComposite(QStringLiteral("XmlDeviceType"))
{
}

const ElementForm& XmlDeviceType::form() const
{
    using Self = XmlDeviceType;
    enum : Marks {
        Category = 1,
        Name = 2,
        Frequencies = 4,
        Noises = 8,
        KFactors = 16,
        Attenuations = 32,
        Gains = 64,
        Degrees = 128,
        Dbm = 256,
    };
    constexpr Marks Fixed = Category | Name | Frequencies;
    constexpr Marks Lists = Noises | KFactors | Attenuations | Gains | Degrees | Dbm;
    constexpr Marks All = Fixed | Lists;
    // The order is that of writing. The gates of the lists contradict it: KFactors is written second but
    // refused before Gains, Degrees and DBM.
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .children({
                {"DeviceCategory", Category, All, child<&Self::m_category>()},
                {"Name", Name, Name | Frequencies | Lists, child<&Self::m_objName>()},
                {"Frequencies", Frequencies, Frequencies | Lists, child<&Self::m_frequencies>()},
                {"Noises", Noises, Lists, reused<&Self::m_noises>()},
                {"KFactors", KFactors, KFactors | Attenuations, reused<&Self::m_kFactors>()},
                {"Attenuations", Attenuations, Lists, reused<&Self::m_attenuations>()},
                {"Gains", Gains, KFactors | Attenuations | Gains | Degrees | Dbm, reused<&Self::m_gains>()},
                {"Degrees", Degrees, KFactors | Attenuations | Gains | Degrees | Dbm, reused<&Self::m_accuracies>()},
                {"DBM", Dbm, KFactors | Attenuations | Dbm, reused<&Self::m_levels>()},
            })
            .completeWhen(All, Fixed | Noises)
            .completeWhen(All, Fixed | Noises | KFactors | Gains | Dbm)
            .completeWhen(All, Fixed | Noises | KFactors | Degrees | Dbm)
            .completeWhen(All, Fixed | KFactors)
            .completeWhen(All, Fixed | Attenuations)
            .refusesOtherVersions();
    return form;
}

XmlDeviceListType::XmlDeviceListType()
    : XmlList(QStringLiteral("XmlDeviceListType"))
{
}

const ElementForm& XmlDeviceListType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording).listOf("Device", items<&XmlDeviceListType::m_items>(), "Too few devices (min. 1)");
    return form;
}

// A map entry

XmlMapType::XmlMapType()
    : XmlVersionedComposite(QStringLiteral("XmlMapType"))
{
    m_key.renew();
    m_value.renew();
}

const ElementForm& XmlMapType::form() const
{
    static const NeverDestroyed<ElementForm> form = [] {
        Content key = unjudged(reused<&XmlMapType::m_key>());
        const Content value = reused<&XmlMapType::m_value>();
        key.write = value.write; // the value is written in the place of the key, too
        return ElementForm(listWording)
            .sequence({required("Key", key), required("Value", value)})
            .refusesOtherVersions();
    }();
    return form;
}

bool XmlMapType::isValid() const
{
    return m_value.isPresent() && XmlVersionedComposite::isValid();
}

XmlMapListType::XmlMapListType()
    : XmlList(QStringLiteral("XmlMapListType"))
{
}

const ElementForm& XmlMapListType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording).listOf("Map", items<&XmlMapListType::m_items>(), "Too few mappings (min. 1)");
    return form;
}

} // namespace ArvXml
