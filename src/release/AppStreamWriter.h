#pragma once

#include "release/OutputCheck.h"
#include "release/ProductFacts.h"
#include "release/ReleaseStep.h"

#include <QByteArray>

namespace brevaro {

// The AppStream metainfo of a product: a desktop application component with its identifier,
// name, summary, description, developer, addresses, screenshot, keywords, licence and the
// releases, newest first. UTF-8.
QByteArray appStreamMetainfo(const ProductFacts& facts, const std::vector<ReleaseEntry>& releases);
// The file name: the component identifier and ".metainfo.xml".
QString appStreamFileName(const ProductFacts& facts);
// The rules the software centres' validator applies, over the facts and the written bytes.
std::vector<OutputFinding> checkAppStream(const ProductFacts& facts, const QByteArray& written);

} // namespace brevaro
