#include "controls/ControlIcons.h"

namespace brevaro {

namespace {

QString icon(const char* name) {
    return QStringLiteral(":/icons/") + QLatin1String(name) + QStringLiteral(".svg");
}

const char* byAction(ControlAction action) {
    switch (action) {
    case ControlAction::NewCompany:
        return "new-company";
    case ControlAction::SaveCompany:
        return "save-company";
    case ControlAction::DeleteCompany:
        return "delete-company";
    case ControlAction::NewProgram:
        return "new-program";
    case ControlAction::SaveProgram:
        return "save-program";
    case ControlAction::DeleteProgram:
        return "delete-program";
    case ControlAction::VerifyPAD:
        return "verify-pad";
    case ControlAction::CreatePAD:
        return "create-pad";
    case ControlAction::Submit:
        return "submit";
    case ControlAction::NewRelease:
        return "new-release";
    case ControlAction::Exit:
        return "exit";
    case ControlAction::OpenFieldUrl:
        return "open-url";
    case ControlAction::CopyField:
    case ControlAction::CopyDescription:
        return "copy";
    case ControlAction::TranslateField:
    case ControlAction::OpenTranslator:
        return "translate";
    case ControlAction::FileInfo:
        return "file-info";
    case ControlAction::LoadText:
    case ControlAction::ImportPAD:
        return "open-file";
    case ControlAction::SaveText:
        return "save-file";
    case ControlAction::DefaultText:
        return "default-text";
    default:
        return nullptr;
    }
}

} // namespace

QString iconPath(const ControlRow& row, bool down) {
    if (row.name == QLatin1String("picKeywordsGenerator"))
        return icon(down ? "keywords-down" : "keywords");
    if (row.name == QLatin1String("picClickNextBanner"))
        return icon(down ? "next-banner-down" : "next-banner");
    if (row.name == QLatin1String("picBrevaro"))
        return icon("logo-brevaro");
    if (row.name == QLatin1String("picQuorin"))
        return icon("logo-quorin");
    if (row.name == QLatin1String("picASP"))
        return icon("logo-asp");
    if (row.name == QLatin1String("mnuHelp") && row.action == ControlAction::About)
        return icon("brevaro");
    const char* name = byAction(row.action);
    return name ? icon(name) : QString();
}

} // namespace brevaro
