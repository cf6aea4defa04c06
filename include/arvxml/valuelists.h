#pragma once

/// \file
/// Lists of measured quantities, and of receiver thresholds by frequency.

#include "arvxml/composite.h"
#include "arvxml/quantities.h"

namespace ArvXml {

/// Levels, at least one ("Too few pairs (min. 1)"):
/// \code{.xml}
/// <DBM version="1.0">
///     <dBm version="1.0" unit="dBm">3.000000000</dBm>
///     <dBm version="1.0" unit="dBm">6.000000000</dBm>
/// </DBM>
/// \endcode
class ARVXML_EXPORT XmlDBMListType : public XmlList {
public:
    XmlDBMListType();

    /// The items, owned by the list. The setter replaces them with copies.
    const QList<XmlDBMType*>& dBmList() const { return m_items.items(); }
    void setDBMList(const QList<XmlDBMType*>& items) { m_items.set(items); }

private:
    const ContentModel& contentModel() const override;

    OwnedList<XmlDBMType> m_items;
};

/// Ratios, at least one ("Too few pairs (min. 1)"):
/// \code{.xml}
/// <Gains version="1.0">
///     <Decibel version="1.0" unit="dB">2.000000</Decibel>
///     <Decibel version="1.0" unit="dB">2.500000</Decibel>
/// </Gains>
/// \endcode
class ARVXML_EXPORT XmlDecibelListType : public XmlList {
public:
    XmlDecibelListType();

    /// The items, owned by the list. The setter replaces them with copies.
    const QList<XmlDecibelType*>& decibelList() const { return m_items.items(); }
    void setDecibelList(const QList<XmlDecibelType*>& items) { m_items.set(items); }

private:
    const ContentModel& contentModel() const override;

    OwnedList<XmlDecibelType> m_items;
};

/// Angles, at least one ("Too few pairs (min. 1)"). In a device, list and items have the same tag:
/// \code{.xml}
/// <Degrees version="1.0">
///     <Degrees version="1.0" unit="°">1.5</Degrees>
///     <Degrees version="1.0" unit="°">2.0</Degrees>
/// </Degrees>
/// \endcode
class ARVXML_EXPORT XmlDegreesListType : public XmlList {
public:
    XmlDegreesListType();

    /// The items, owned by the list. The setter replaces them with copies.
    const QList<XmlDegreesType*>& degreeList() const { return m_items.items(); }
    void setDegreesList(const QList<XmlDegreesType*>& items) { m_items.set(items); }

private:
    const ContentModel& contentModel() const override;

    OwnedList<XmlDegreesType> m_items;
};

/// Frequencies, at least one ("Too few frequencies (min. 1)"):
/// \code{.xml}
/// <Frequencies version="1.0">
///     <Frequency version="1.0" unit="MHz">30.000000</Frequency>
///     <Frequency version="1.0" unit="MHz">88.000000</Frequency>
/// </Frequencies>
/// \endcode
class ARVXML_EXPORT XmlFreqListType : public XmlList {
public:
    XmlFreqListType();

    /// The items, owned by the list. The setter replaces them with copies.
    const QList<XmlFreqType*>& freqList() const { return m_items.items(); }
    void setFreqList(const QList<XmlFreqType*>& items) { m_items.set(items); }

private:
    const ContentModel& contentModel() const override;

    OwnedList<XmlFreqType> m_items;
};

/// A frequency and the receiver threshold at it, both required, in the order shown. Versions other than "1.0" are read
/// and reported. No other element contains this one.
/// \code{.xml}
/// <Pair version="1.0">
///     <Frequency version="1.0" unit="MHz">30.000000</Frequency>
///     <RxThreshold version="1.0" unit="dBm">-100.000000000000000</RxThreshold>
/// </Pair>
/// \endcode
class ARVXML_EXPORT XmlFreqThrPairType : public XmlVersionedComposite {
public:
    XmlFreqThrPairType();

    /// The frequency, tag "Frequency".
    const XmlFreqType* frequency() const { return &m_frequency; }
    void setFrequency(const XmlFreqType& frequency) { m_frequency = frequency; }

    /// The threshold, tag "RxThreshold".
    const XmlFieldstrengthType* fieldstrength() const { return &m_threshold; }
    void setFieldstrength(const XmlFieldstrengthType& threshold) { m_threshold = threshold; }

private:
    const ContentModel& contentModel() const override;

    XmlFreqType m_frequency;
    XmlFieldstrengthType m_threshold;
};

/// Thresholds by frequency, at least one ("Too few pairs (min. 1)"):
/// `<Thresholds version="1.0"><Pair version="1.0">...</Pair></Thresholds>`. No other element contains this one.
class ARVXML_EXPORT XmlFreqThrListType : public XmlList {
public:
    XmlFreqThrListType();

    /// The items, owned by the list. The setter replaces them with copies.
    const QList<XmlFreqThrPairType*>& freqThrPairs() const { return m_items.items(); }
    void setFreqThrPairs(const QList<XmlFreqThrPairType*>& items) { m_items.set(items); }

private:
    const ContentModel& contentModel() const override;

    OwnedList<XmlFreqThrPairType> m_items;
};

} // namespace ArvXml
