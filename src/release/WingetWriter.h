#pragma once

#include "release/OutputCheck.h"
#include "release/ProductFacts.h"

#include <QByteArray>
#include <vector>

namespace brevaro {

// One installer of a package manager manifest: a download address with the SHA-256 of its
// file and the architecture it runs on.
struct WingetInstaller {
    QString architecture;
    QString url;
    QString sha256;
};

// What the Windows package manager's manifests say beyond the product's facts.
struct WingetPackage {
    QString identifier;    // Publisher.Package
    QString installerType; // exe, msi, msix, ...
    std::vector<WingetInstaller> installers;
};

// The package of a program: its package identifier (else one made of the company and program
// names), its installer type (exe when none is chosen) and one installer per download address
// that has a SHA-256, with the architectures in the order chosen (x64 when none is).
WingetPackage wingetPackage(const ProductFacts& facts, const ProgramRecord& program);

// The three files of the multi-file manifest: version, default locale and installer.
struct WingetFile {
    QString fileName;
    QByteArray bytes;
};
std::vector<WingetFile> wingetManifests(const ProductFacts& facts, const WingetPackage& package);
// The published limits of every field, and what the package manager's validation refuses.
std::vector<OutputFinding> checkWinget(const ProductFacts& facts, const WingetPackage& package);

// A YAML double-quoted scalar holding text exactly.
QString yamlQuoted(const QString& text);

} // namespace brevaro
