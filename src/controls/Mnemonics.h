#pragma once

#include <QString>

namespace brevaro {

// Gives a caption a keyboard mnemonic ("&"): the first letter of a word not yet taken, else
// any letter not yet taken, else none. used holds the letters taken (lower case) and gains the
// one chosen.
QString withMnemonic(const QString& caption, QString& used);

} // namespace brevaro
