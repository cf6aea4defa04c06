#pragma once

#include "arvxml/element.h"
#include "arvxml/names.h"
#include "arvxml/quantities.h"
#include "arvxml/valuelists.h"

namespace ArvXml {

/// What kind of device a device is: `<DeviceCategory>DF</DeviceCategory>`.
///
/// Texts "Receiver", "PassiveAntennas", "Cable", "Other", "ActiveAntennas", "DF", in this order;
/// another text is the reader error "Illegal enum value.". Undefined is reported as "Illegal Device
/// Category.".
class ARVXML_EXPORT XmlDeviceCategoryType : public XmlEnumeration {
public:
    enum Category : int {
        Undefined = 0,
        Receiver = 1,
        PassiveAntennas = 2,
        Cable = 3,
        Other = 4,
        ActiveAntennas = 5,
        DF = 6,
    };

    XmlDeviceCategoryType();
    Category category() const { return static_cast<Category>(m_value); }
    void setCategory(Category category) { m_value = category; }

protected:
    const EnumerationRules& rules() const override;
};

/// A piece of equipment on a signal path, by the frequencies at which it is characterised and its
/// values at them: `<Device version="1.0"><DeviceCategory>...</DeviceCategory><Name>...</Name>
/// <Frequencies>...</Frequencies><Noises>...</Noises></Device>`.
///
/// Category, name and frequencies are required. The optional lists must, on reading, form one of five
/// sets: Noises; Noises, KFactors, Gains, DBM; Noises, KFactors, Degrees, DBM; KFactors; Attenuations.
/// The two sets of four are read only with KFactors last (Noises, Gains, DBM, KFactors), but written
/// with KFactors second: the library refuses what it wrote of them itself. Judging and writing do not
/// look at the set. Another version than "1.0" is refused while reading.
class ARVXML_EXPORT XmlDeviceType : public XmlVersionedComposite {
public:
    XmlDeviceType();

    const XmlDeviceCategoryType* category() const { return &m_category; }
    void setCategory(const XmlDeviceCategoryType& category) { m_category = category; }
    const XmlObjNameType* objName() const { return &m_objName; }
    void setObjName(const XmlObjNameType& objName) { m_objName = objName; }
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

protected:
    const ElementForm& form() const override;

private:
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

/// Devices: `<Device version="1.0"><Device .../><Device .../></Device>`, at least one ("Too few devices
/// (min. 1)").
class ARVXML_EXPORT XmlDeviceListType : public XmlList {
public:
    XmlDeviceListType();
    /// The devices, owned by the list.
    const QList<XmlDeviceType*>& deviceList() const { return m_items.items(); }
    /// Replaces the devices by copies of the given ones, which stay the caller's.
    void setDeviceList(const QList<XmlDeviceType*>& devices) { m_items.set(devices); }

protected:
    const ElementForm& form() const override;

private:
    OwnedList<XmlDeviceType> m_items;
};

/// A length for a key: read as `<Map version="1.0"><Key>3</Key><Value unit="m">12</Value></Map>`.
///
/// A value before the key is read, but then the key is refused.
///
/// It is written with the value twice, under "Key" and under "Value"; the key is never written. The key
/// does not count for isValid(), though syntaxError() reports it. Another version than "1.0" is refused
/// while reading.
///
/// reset() removes key and value: their getters then return null, nothing of them is written, and the
/// entry is invalid without a problem being told, until they are set or read again.
class ARVXML_EXPORT XmlMapType : public XmlVersionedComposite {
public:
    XmlMapType();
    const XmlKeyType* key() const { return m_key.get(); }
    void setKey(const XmlKeyType& key) { m_key.set(key); }
    const XmlLengthType* value() const { return m_value.get(); }
    void setValue(const XmlLengthType& value) { m_value.set(value); }

    bool isValid() const override;

protected:
    const ElementForm& form() const override;

private:
    OptionalChild<XmlKeyType> m_key;
    OptionalChild<XmlLengthType> m_value;
};

/// Lengths by key, for antenna heights and cable lengths:
/// `<AntHgtMap version="1.0"><Map .../></AntHgtMap>`, at least one ("Too few mappings (min. 1)").
class ARVXML_EXPORT XmlMapListType : public XmlList {
public:
    XmlMapListType();
    /// The entries, owned by the list.
    const QList<XmlMapType*>& mapList() const { return m_items.items(); }
    /// Replaces the entries by copies of the given ones, which stay the caller's.
    void setMapList(const QList<XmlMapType*>& entries) { m_items.set(entries); }

protected:
    const ElementForm& form() const override;

private:
    OwnedList<XmlMapType> m_items;
};

} // namespace ArvXml
