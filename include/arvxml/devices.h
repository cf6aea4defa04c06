#pragma once

/// \file
/// Devices on a signal path, and lengths by key.

#include "arvxml/composite.h"
#include "arvxml/enumeration.h"
#include "arvxml/names.h"
#include "arvxml/quantities.h"
#include "arvxml/valuelists.h"

namespace ArvXml {

/// The category of a device: `<DeviceCategory>DF</DeviceCategory>`. See the enumerators for the texts. Other texts are
/// the reader error "Illegal enum value.". Problem: "Illegal Device Category.".
class ARVXML_EXPORT XmlDeviceCategoryType : public XmlEnumeration {
public:
    /// The categories, with their texts, in the order of the protocol.
    enum Category : int {
        Undefined = 0,       ///< Not set.
        Receiver = 1,        ///< "Receiver"
        PassiveAntennas = 2, ///< "PassiveAntennas"
        Cable = 3,           ///< "Cable"
        Other = 4,           ///< "Other"
        ActiveAntennas = 5,  ///< "ActiveAntennas"
        DF = 6,              ///< "DF": a direction finder
    };

    XmlDeviceCategoryType();

    /// The category; Undefined by default.
    Category category() const { return static_cast<Category>(m_value); }
    void setCategory(Category category) { m_value = category; }

private:
    const EnumerationRules& rules() const override;
};

/// A device on a signal path, characterised by its values at given frequencies. Category, name and frequencies are
/// required, in this order. The optional lists follow, written in the order of the accessors.
/// \code{.xml}
/// <Device version="1.0">
///     <DeviceCategory>Cable</DeviceCategory>
///     <Name>RG 58</Name>
///     <Frequencies version="1.0">...</Frequencies>
///     <Attenuations version="1.0">...</Attenuations>
/// </Device>
/// \endcode
/// On reading, the lists must form one of five sets: Noises; Noises, KFactors, Gains, DBM; Noises, KFactors, Degrees,
/// DBM; KFactors; Attenuations. The sets of four are read only with KFactors last (Noises, Gains, DBM, KFactors) but
/// written with KFactors second, so they cannot be read back. Validation and writing do not check the set, which is
/// independent of the category. Reading reuses lists and keeps those not in the document; only reset() removes a list.
class ARVXML_EXPORT XmlDeviceType : public XmlVersionedComposite {
public:
    XmlDeviceType();

    /// The category, tag "DeviceCategory".
    const XmlDeviceCategoryType* category() const { return &m_category; }
    void setCategory(const XmlDeviceCategoryType& category) { m_category = category; }

    /// The name, tag "Name".
    const XmlObjNameType* objName() const { return &m_objName; }
    void setObjName(const XmlObjNameType& objName) { m_objName = objName; }

    /// The frequencies to which the values in the lists belong, tag "Frequencies".
    const XmlFreqListType* frequencyList() const { return &m_frequencies; }
    void setFrequencyList(const XmlFreqListType& frequencies) { m_frequencies = frequencies; }

    /// The noise figures at the frequencies, tag "Noises"; null when absent.
    const XmlDecibelListType* noiseList() const { return m_noises.get(); }
    bool hasNoise() const { return m_noises.isPresent(); }
    void setNoiseList(const XmlDecibelListType& noises) { m_noises.set(noises); }

    /// The antenna factors at the frequencies, tag "KFactors"; null when absent.
    const XmlDecibelListType* kFactorList() const { return m_kFactors.get(); }
    bool hasKfactor() const { return m_kFactors.isPresent(); }
    void setKfactorList(const XmlDecibelListType& kFactors) { m_kFactors.set(kFactors); }

    /// The attenuations at the frequencies, tag "Attenuations"; null when absent.
    const XmlDecibelListType* attenuationList() const { return m_attenuations.get(); }
    bool hasAttenuation() const { return m_attenuations.isPresent(); }
    void setAttenuationList(const XmlDecibelListType& attenuations) { m_attenuations.set(attenuations); }

    /// The gains at the frequencies, tag "Gains"; null when absent.
    const XmlDecibelListType* gainList() const { return m_gains.get(); }
    bool hasGain() const { return m_gains.isPresent(); }
    void setGainList(const XmlDecibelListType& gains) { m_gains.set(gains); }

    /// The bearing accuracies at the frequencies, tag "Degrees"; null when absent.
    const XmlDegreesListType* accuracyList() const { return m_accuracies.get(); }
    bool hasAccuracy() const { return m_accuracies.isPresent(); }
    void setAccuracyList(const XmlDegreesListType& accuracies) { m_accuracies.set(accuracies); }

    /// The levels at the frequencies, tag "DBM"; null when absent.
    const XmlDBMListType* dbmList() const { return m_levels.get(); }
    bool hasDBM() const { return m_levels.isPresent(); }
    void setDBMList(const XmlDBMListType& levels) { m_levels.set(levels); }

private:
    const ContentModel& contentModel() const override;

    XmlDeviceCategoryType m_category;
    XmlObjNameType m_objName;
    XmlFreqListType m_frequencies;
    OptionalChild<XmlDecibelListType> m_noises;
    OptionalChild<XmlDecibelListType> m_kFactors;
    OptionalChild<XmlDecibelListType> m_attenuations;
    OptionalChild<XmlDecibelListType> m_gains;
    OptionalChild<XmlDegreesListType> m_accuracies;
    OptionalChild<XmlDBMListType> m_levels;
};

/// Devices, at least one ("Too few devices (min. 1)"). In a signal path, list and items have the same tag:
/// `<Device version="1.0"><Device version="1.0">...</Device></Device>`.
class ARVXML_EXPORT XmlDeviceListType : public XmlList {
public:
    XmlDeviceListType();

    /// The devices, owned by the list. The setter replaces them with copies.
    const QList<XmlDeviceType*>& deviceList() const { return m_items.items(); }
    void setDeviceList(const QList<XmlDeviceType*>& devices) { m_items.set(devices); }

private:
    const ContentModel& contentModel() const override;

    OwnedList<XmlDeviceType> m_items;
};

/// A length with a key, both required, in this order. If the value is read first, the key is refused. Read as:
/// \code{.xml}
/// <Map version="1.0">
///     <Key>3</Key>
///     <Value version="1.0" unit="m">12</Value>
/// </Map>
/// \endcode
/// The value is written twice, as "Key" and as "Value", and the key never: read back, the length is the key. isValid()
/// ignores the key, but syntaxError() reports it. After reset() there is neither key nor value: nothing is written, and
/// the entry is invalid without a reported problem until both are set or read again.
class ARVXML_EXPORT XmlMapType : public XmlVersionedComposite {
public:
    XmlMapType();

    /// The key; null after reset().
    const XmlKeyType* key() const { return m_key.get(); }
    void setKey(const XmlKeyType& key) { m_key.set(key); }

    /// The length; null after reset().
    const XmlLengthType* value() const { return m_value.get(); }
    void setValue(const XmlLengthType& value) { m_value.set(value); }

    bool isValid() const override;

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlKeyType> m_key;
    OptionalChild<XmlLengthType> m_value;
};

/// Lengths by key, for antenna heights and cable lengths, at least one ("Too few mappings (min. 1)"). Read as
/// `<AntHgtMap version="1.0"><Map version="1.0">...</Map></AntHgtMap>`; see XmlMapType for what is written.
class ARVXML_EXPORT XmlMapListType : public XmlList {
public:
    XmlMapListType();

    /// The entries, owned by the list. The setter replaces them with copies.
    const QList<XmlMapType*>& mapList() const { return m_items.items(); }
    void setMapList(const QList<XmlMapType*>& entries) { m_items.set(entries); }

private:
    const ContentModel& contentModel() const override;

    OwnedList<XmlMapType> m_items;
};

} // namespace ArvXml
