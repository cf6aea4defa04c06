#pragma once

#include "arvxml/element.h"
#include "arvxml/quantities.h"

namespace ArvXml {

/// Levels: `<DBM version="1.0"><dBm .../><dBm .../></DBM>`, at least one ("Too few pairs (min. 1)").
class ARVXML_EXPORT XmlDBMListType : public XmlList {
public:
    XmlDBMListType();
    /// The items, owned by the list.
    const QList<XmlDBMType*>& dBmList() const { return m_items.items(); }
    /// Replaces the items by copies of the given ones, which stay the caller's.
    void setDBMList(const QList<XmlDBMType*>& items) { m_items.set(items); }

protected:
    const ElementForm& form() const override;

private:
    OwnedList<XmlDBMType> m_items;
};

/// Ratios: `<Gains version="1.0"><Decibel .../></Gains>`, at least one ("Too few pairs (min. 1)").
class ARVXML_EXPORT XmlDecibelListType : public XmlList {
public:
    XmlDecibelListType();
    /// The items, owned by the list.
    const QList<XmlDecibelType*>& decibelList() const { return m_items.items(); }
    /// Replaces the items by copies of the given ones, which stay the caller's.
    void setDecibelList(const QList<XmlDecibelType*>& items) { m_items.set(items); }

protected:
    const ElementForm& form() const override;

private:
    OwnedList<XmlDecibelType> m_items;
};

/// Angles: `<Degrees version="1.0"><Degrees .../></Degrees>`, at least one ("Too few pairs (min.
/// 1)").
class ARVXML_EXPORT XmlDegreesListType : public XmlList {
public:
    XmlDegreesListType();
    /// The items, owned by the list.
    const QList<XmlDegreesType*>& degreeList() const { return m_items.items(); }
    /// Replaces the items by copies of the given ones, which stay the caller's.
    void setDegreesList(const QList<XmlDegreesType*>& items) { m_items.set(items); }

protected:
    const ElementForm& form() const override;

private:
    OwnedList<XmlDegreesType> m_items;
};

/// Frequencies: `<Frequencies version="1.0"><Frequency .../></Frequencies>`, at least one ("Too few
/// frequencies (min. 1)").
class ARVXML_EXPORT XmlFreqListType : public XmlList {
public:
    XmlFreqListType();
    /// The items, owned by the list.
    const QList<XmlFreqType*>& freqList() const { return m_items.items(); }
    /// Replaces the items by copies of the given ones, which stay the caller's.
    void setFreqList(const QList<XmlFreqType*>& items) { m_items.set(items); }

protected:
    const ElementForm& form() const override;

private:
    OwnedList<XmlFreqType> m_items;
};

/// A frequency and the receiver threshold at it:
/// `<Pair version="1.0"><Frequency .../><RxThreshold .../></Pair>`, both required, in this order.
class ARVXML_EXPORT XmlFreqThrPairType : public XmlVersionedComposite {
public:
    XmlFreqThrPairType();
    const XmlFreqType* frequency() const { return &m_frequency; }
    void setFrequency(const XmlFreqType& frequency) { m_frequency = frequency; }
    const XmlFieldstrengthType* fieldstrength() const { return &m_threshold; }
    void setFieldstrength(const XmlFieldstrengthType& threshold) { m_threshold = threshold; }

protected:
    const ElementForm& form() const override;

private:
    XmlFreqType m_frequency;
    XmlFieldstrengthType m_threshold;
};

/// Thresholds by frequency: `<Thresholds version="1.0"><Pair .../></Thresholds>`, at least one ("Too
/// few pairs (min. 1)").
class ARVXML_EXPORT XmlFreqThrListType : public XmlList {
public:
    XmlFreqThrListType();
    /// The items, owned by the list.
    const QList<XmlFreqThrPairType*>& freqThrPairs() const { return m_items.items(); }
    /// Replaces the items by copies of the given ones, which stay the caller's.
    void setFreqThrPairs(const QList<XmlFreqThrPairType*>& items) { m_items.set(items); }

protected:
    const ElementForm& form() const override;

private:
    OwnedList<XmlFreqThrPairType> m_items;
};

} // namespace ArvXml
