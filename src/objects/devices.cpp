#include "arvxml/devices.h"

#include "core/contentmodel.h"
#include "core/enumerationrules.h"

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

const ContentModel& XmlDeviceType::contentModel() const
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
    // Odd: a device has exactly one of five sets of lists, see completeWhen(). And the gates of the lists contradict
    // the order of writing: KFactors is written second, but Gains, Degrees and DBM are refused after it.
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .rows({
                Row("DeviceCategory", child<&Self::m_category>()).required().marks(Category).refusedAfter(All),
                Row("Name", child<&Self::m_objName>()).required().marks(Name).refusedAfter(Name | Frequencies | Lists),
                Row("Frequencies", child<&Self::m_frequencies>())
                    .required()
                    .marks(Frequencies)
                    .refusedAfter(Frequencies | Lists),
                Row("Noises", reused<&Self::m_noises>()).marks(Noises).refusedAfter(Lists),
                Row("KFactors", reused<&Self::m_kFactors>()).marks(KFactors).refusedAfter(KFactors | Attenuations),
                Row("Attenuations", reused<&Self::m_attenuations>()).marks(Attenuations).refusedAfter(Lists),
                Row("Gains", reused<&Self::m_gains>())
                    .marks(Gains)
                    .refusedAfter(KFactors | Attenuations | Gains | Degrees | Dbm),
                Row("Degrees", reused<&Self::m_accuracies>())
                    .marks(Degrees)
                    .refusedAfter(KFactors | Attenuations | Gains | Degrees | Dbm),
                Row("DBM", reused<&Self::m_levels>()).marks(Dbm).refusedAfter(KFactors | Attenuations | Dbm),
            })
            .completeWhen(All, Fixed | Noises)
            .completeWhen(All, Fixed | Noises | KFactors | Gains | Dbm)
            .completeWhen(All, Fixed | Noises | KFactors | Degrees | Dbm)
            .completeWhen(All, Fixed | KFactors)
            .completeWhen(All, Fixed | Attenuations)
            .refusesOtherVersions();
    return model;
}

XmlDeviceListType::XmlDeviceListType()
    : XmlList(QStringLiteral("XmlDeviceListType"))
{
}

const ContentModel& XmlDeviceListType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording).listOf("Device", items<&XmlDeviceListType::m_items>(), "Too few devices (min. 1)");
    return model;
}

// A map entry

XmlMapType::XmlMapType()
    : XmlVersionedComposite(QStringLiteral("XmlMapType"))
{
    m_key.renew();
    m_value.renew();
}

const ContentModel& XmlMapType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model = [] {
        Binding key = unjudged(reused<&XmlMapType::m_key>());
        const Binding value = reused<&XmlMapType::m_value>();
        key.write = value.write; // the value is written in the place of the key, too
        return ContentModel(listWording)
            .sequence({required("Key", key), required("Value", value)})
            .refusesOtherVersions();
    }();
    return model;
}

bool XmlMapType::isValid() const
{
    return m_value.isPresent() && XmlVersionedComposite::isValid();
}

XmlMapListType::XmlMapListType()
    : XmlList(QStringLiteral("XmlMapListType"))
{
}

const ContentModel& XmlMapListType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording).listOf("Map", items<&XmlMapListType::m_items>(), "Too few mappings (min. 1)");
    return model;
}

} // namespace ArvXml
