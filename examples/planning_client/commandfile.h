#pragma once

#include "planning_client/orders.h"

/// The commands of \a document, a command document from a file, as an order with a fresh envelope. They
/// are judged first.
Order orderFrom(const QByteArray& document);
