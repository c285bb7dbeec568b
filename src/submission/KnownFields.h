#pragma once

#include <QString>
#include <vector>

namespace brevaro {

// One well-known input of a submission page and what it receives. The first INPUT element
// whose type and name equal these (compared in upper case) gets the value; later inputs of
// the same name are left alone.
struct KnownInput {
    QString name;
    QString value;
    QString type; // upper case: "TEXT", "PASSWORD", "FILE"

    bool isUpload() const { return type == u"FILE"; }
    friend bool operator==(const KnownInput&, const KnownInput&) = default;
};

// The inputs FillKnownFields fills, in order: the PAD file address into a text input named
// "padfile" (and, as an upload, into a file input of that name), the user name and the
// password.
std::vector<KnownInput> knownFieldPlan(const QString& padFileUrl, const QString& user,
                                       const QString& password);

// Page scripts (JavaScript) that carry out the plan in a page's document. Each finds the
// first matching INPUT; the value scripts set it and raise the "input" and "change" events
// the page's own scripts listen to, and evaluate to true when an input was found.
QString setInputValueScript(const KnownInput& input);
// Focuses (selects) the first matching input; true when there is one.
QString selectInputScript(const KnownInput& input);
// Puts a file with the given name and bytes into the first matching upload input, as if the
// user had chosen it, and raises "input" and "change"; evaluates to the chosen file's name,
// or to an empty text when there is no such input.
QString attachFileScript(const KnownInput& input, const QString& fileName, const QByteArray& bytes);

} // namespace brevaro
