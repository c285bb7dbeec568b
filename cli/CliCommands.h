#pragma once

#include "CliArgs.h"
#include "CliContext.h"
#include "pad/PadVersion.h"

#include <functional>

namespace brevaro::cli {

struct CliCommand {
    const char* name;
    const char* usage;
    std::function<int(CliContext&, const QStringList&)> run;
};

// Every command of brevaro-cli, in the order --help lists them.
const std::vector<CliCommand>& cliCommands();

} // namespace brevaro::cli

namespace brevaro::cli {
// Record commands.
int listCommand(CliContext& ctx, const QStringList& words);
int showCommand(CliContext& ctx, const QStringList& words);
int newCompanyCommand(CliContext& ctx, const QStringList& words);
int newProgramCommand(CliContext& ctx, const QStringList& words);
int deleteCommand(CliContext& ctx, const QStringList& words);
int setCommand(CliContext& ctx, const QStringList& words);
// PAD commands.
int padCommand(CliContext& ctx, const QStringList& words);
int webinfoCommand(CliContext& ctx, const QStringList& words);
int verifyCommand(CliContext& ctx, const QStringList& words);
int importCommand(CliContext& ctx, const QStringList& words);
// The PAD check: findings one a line or as JSON; kCheckFoundErrors when there are errors.
inline constexpr int kCheckFoundErrors = 3;
int checkCommand(CliContext& ctx, const QStringList& words);
// Ends the command with kCheckFoundErrors when the PAD file of the records has errors.
void refusePadWithErrors(const CompanyRecord& company, const ProgramRecord& program,
                         PadVersion version);
// The version --format names; 1.15 without it, a usage error for any other text.
PadVersion formatOption(const CliArgs& args);
// Release commands.
int releaseCommand(CliContext& ctx, const QStringList& words);
int exportCommand(CliContext& ctx, const QStringList& words);
// Network commands.
int keywordsCommand(CliContext& ctx, const QStringList& words);
int sitesCommand(CliContext& ctx, const QStringList& words);
int encipherSitesCommand(CliContext& ctx, const QStringList& words);
} // namespace brevaro::cli
