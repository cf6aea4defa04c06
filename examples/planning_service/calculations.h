#pragma once

#include "planning_service/plan.h"

#include <arvxml/arvxml.h>

#include <optional>

/// Calculations are only pretended: this is an example of the conversation, not of radio planning.

/// The result names \a model, the propagation model.
ArvXml::XmlInterlinkResultType planInterlink(const ArvXml::XmlInterlinkPlanningType& order, const QString& model);

/// The result of any calculation but interlink planning.
ArvXml::XmlGridResultType calculateGrid(const ArvXml::XmlCmdCalc& command);

/// A station that could serve \a order: the first one of \a plan, or a new one in the order's first
/// deployment area; nothing when the plan knows neither.
std::optional<ArvXml::XmlStationType> proposeStation(const ArvXml::XmlFindSitesType& order, const Plan& plan);
