#pragma once

#include "plain.h"

#include <QtCore/QXmlStreamReader>

/// \file
/// The hand-written loops for the planning objects. Each starts on a start tag and ends on its end tag.

namespace Bench::Plain {

DeploymentArea readDeploymentArea(QXmlStreamReader& reader);
AreaOfInterest readAreaOfInterest(QXmlStreamReader& reader);
Station readStation(QXmlStreamReader& reader);
Receiver readReceiver(QXmlStreamReader& reader);
Emitter readEmitter(QXmlStreamReader& reader);
DirectionFinder readDirectionFinder(QXmlStreamReader& reader);
SignalPath readSignalPath(QXmlStreamReader& reader);
Device readDevice(QXmlStreamReader& reader);
ResultRecord readResultRecord(QXmlStreamReader& reader);

/// Raises an error for the element that the reader stands on.
void refuse(QXmlStreamReader& reader);

} // namespace Bench::Plain
