#pragma once

#include "release/OutputCheck.h"
#include "release/ProductFacts.h"

#include <QByteArray>

namespace brevaro {

// The schema.org SoftwareApplication of a product, as JSON-LD for its page: name, version,
// systems, category, offers, download address, screenshot, date, description and publisher.
// Nothing is written that the records do not hold (no ratings, no reviews).
QByteArray jsonLd(const ProductFacts& facts);
// What search engines need of it, and that the written bytes parse.
std::vector<OutputFinding> checkJsonLd(const ProductFacts& facts, const QByteArray& written);

} // namespace brevaro
