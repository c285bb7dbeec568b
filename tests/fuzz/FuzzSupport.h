#pragma once

#include "platform/SilentPrompts.h"

#include "platform/Prompts.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>

namespace brevaro::fuzz {

// One application object and one scratch folder for the whole run.
inline QTemporaryDir& scratch() {
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    static QCoreApplication app(argc, argv);
    static QTemporaryDir dir;
    return dir;
}

// The input as the named file of the scratch folder; its path.
inline QString inputFile(const char* name, const uint8_t* data, std::size_t size) {
    const QString path = scratch().filePath(QLatin1String(name));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    return path;
}

inline QByteArray bytesOf(const uint8_t* data, std::size_t size) {
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

} // namespace brevaro::fuzz
