#pragma once

/// \file
/// Unsolicited results of the service.

#include "arvxml/composite.h"
#include "arvxml/emitters.h"
#include "arvxml/gridresult.h"
#include "arvxml/interlinkresult.h"
#include "arvxml/stations.h"

namespace ArvXml {

/// A planning object as a result: `<Station><Emitter version="1.0">...</Emitter></Station>`, where the inner element is
/// "Station", "Emitter", "Receiver" or "DF". Reading always ends with an error at the element's own end tag
/// ("Unexpected token "EndElement": Station"); the object read is kept, replacing one of its kind. Setting one object
/// never removes another; all are written. Their number is not checked; even none is valid.
class ARVXML_EXPORT XmlResultObjectType : public XmlComposite {
public:
    XmlResultObjectType();

    bool hasStation() const { return m_station.isPresent(); }
    /// The station, tag "Station"; null when absent.
    const XmlStationType* station() const { return m_station.get(); }
    void setStation(const XmlStationType& station) { m_station.set(station); }

    bool hasEmitter() const { return m_emitter.isPresent(); }
    /// The emitter, tag "Emitter"; null when absent.
    const XmlEmitterType* emitter() const { return m_emitter.get(); }
    void setEmitter(const XmlEmitterType& emitter) { m_emitter.set(emitter); }

    bool hasRx() const { return m_receiver.isPresent(); }
    /// The receiver, tag "Receiver"; null when absent.
    const XmlReceiverType* rx() const { return m_receiver.get(); }
    void setRx(const XmlReceiverType& receiver) { m_receiver.set(receiver); }

    bool hasDf() const { return m_df.isPresent(); }
    /// The direction finder, tag "DF"; null when absent.
    const XmlDfType* df() const { return m_df.get(); }
    void setDf(const XmlDfType& df) { m_df.set(df); }

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlStationType> m_station;
    OptionalChild<XmlEmitterType> m_emitter;
    OptionalChild<XmlReceiverType> m_receiver;
    OptionalChild<XmlDfType> m_df;
};

/// An unsolicited result of the service: `<Interactive><InterlinkResult>...</InterlinkResult></Interactive>`, exactly
/// one of "GridResult", "InterlinkResult" and "Station" ("Illegal number of elements"). A "Station" or "GridResult"
/// always ends the read with an error (see their classes); what was read is kept, replacing what was held of its kind.
class ARVXML_EXPORT XmlInteractRespType : public XmlComposite {
public:
    XmlInteractRespType();

    bool hasGridResult() const { return m_gridResult.isPresent(); }
    /// The result of a calculation over an area, tag "GridResult"; null when absent.
    const XmlGridResultType* gridResult() const { return m_gridResult.get(); }
    void setGridResult(const XmlGridResultType& result) { m_gridResult.set(result); }

    bool hasInterlinkResult() const { return m_interlinkResult.isPresent(); }
    /// The result of interlink planning, tag "InterlinkResult"; null when absent.
    const XmlInterlinkResultType* interlinkResult() const { return m_interlinkResult.get(); }
    void setInterlinkResult(const XmlInterlinkResultType& result) { m_interlinkResult.set(result); }

    bool hasResult() const { return m_result.isPresent(); }
    /// The planning object, tag "Station"; null when absent.
    const XmlResultObjectType* result() const { return m_result.get(); }
    void setResult(const XmlResultObjectType& result) { m_result.set(result); }

    bool isValid() const override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlGridResultType> m_gridResult;
    OptionalChild<XmlInterlinkResultType> m_interlinkResult;
    OptionalChild<XmlResultObjectType> m_result;
};

} // namespace ArvXml
