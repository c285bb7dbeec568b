#include "submission/KnownFields.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace brevaro {

namespace {

// The script's arguments as a JavaScript array literal (JSON is one).
QString arguments(const QStringList& values) {
    return QString::fromUtf8(
        QJsonDocument(QJsonArray::fromStringList(values)).toJson(QJsonDocument::Compact));
}

// A function over the first matching input "e", applied to the arguments [name, type, ...].
QString overFirstInput(const QString& body, const QString& notFound, const QStringList& args) {
    return QStringLiteral("(function(a){var l=document.getElementsByTagName('INPUT');"
                          "for(var i=0;i<l.length;i++){var e=l[i];"
                          "if(String(e.type).toUpperCase()===a[1]&&"
                          "String(e.name).toUpperCase()===a[0]){") +
           body + QStringLiteral("}}return ") + notFound + QStringLiteral(";})(") +
           arguments(args) + u')';
}

const QString kRaiseEvents = QStringLiteral("e.dispatchEvent(new Event('input',{bubbles:true}));"
                                            "e.dispatchEvent(new Event('change',{bubbles:true}));");

} // namespace

std::vector<KnownInput> knownFieldPlan(const QString& padFileUrl, const QString& user,
                                       const QString& password) {
    return {
        {QStringLiteral("padfile"), padFileUrl, QStringLiteral("TEXT")},
        {QStringLiteral("padfile"), padFileUrl, QStringLiteral("FILE")},
        {QStringLiteral("User"), user, QStringLiteral("TEXT")},
        {QStringLiteral("Password"), password, QStringLiteral("PASSWORD")},
    };
}

QString setInputValueScript(const KnownInput& input) {
    return overFirstInput(
        QStringLiteral("e.value=a[2];") + kRaiseEvents + QStringLiteral("return true;"),
        QStringLiteral("false"), {input.name.toUpper(), input.type.toUpper(), input.value});
}

QString selectInputScript(const KnownInput& input) {
    return overFirstInput(QStringLiteral("e.focus();return true;"), QStringLiteral("false"),
                          {input.name.toUpper(), input.type.toUpper()});
}

QString attachFileScript(const KnownInput& input, const QString& fileName,
                         const QByteArray& bytes) {
    return overFirstInput(QStringLiteral("var s=atob(a[3]),b=new Uint8Array(s.length);"
                                         "for(var k=0;k<s.length;k++)b[k]=s.charCodeAt(k);"
                                         "var t=new DataTransfer();"
                                         "t.items.add(new File([b],a[2],{type:'text/xml'}));"
                                         "e.files=t.files;") +
                              kRaiseEvents +
                              QStringLiteral("return e.files.length?e.files[0].name:'';"),
                          QStringLiteral("''"),
                          {input.name.toUpper(), input.type.toUpper(), fileName,
                           QString::fromLatin1(bytes.toBase64())});
}

} // namespace brevaro
