#pragma once

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

// Says no to everything and keeps nothing.
class SilentPrompts : public Prompts {
public:
    bool askYesNo(const QString&, const QString&, Icon) override { return false; }
    std::optional<QString> inputBox(const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
    std::optional<QString> openFile(const FileDialogSpec&) override { return std::nullopt; }
    std::optional<QString> saveFile(const FileDialogSpec&) override { return std::nullopt; }
    void message(const QString&, const QString&) override {}
    void beep() override {}
    QString clipboardText() override { return QString(); }
    void setClipboardText(const QString&) override {}
    void openDocument(const QString&) override {}
    void pumpEvents() override {}
};

} // namespace brevaro::fuzz
