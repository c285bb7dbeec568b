#include "CliCommands.h"

namespace brevaro::cli {

const std::vector<CliCommand>& cliCommands() {
    static const std::vector<CliCommand> commands = {
        {"list", "list", listCommand},
        {"show", "show -c COMPANY [-p PROGRAM] --json", showCommand},
        {"new-company", "new-company NAME", newCompanyCommand},
        {"new-program", "new-program -c COMPANY NAME", newProgramCommand},
        {"delete", "delete -c COMPANY [-p PROGRAM]", deleteCommand},
        {"set", "set -c COMPANY [-p PROGRAM] [--file-info PATH] FIELD=VALUE ...", setCommand},
        {"pad", "pad -c COMPANY -p PROGRAM [-o FILE] [--format 1.15|3.11|4.0] [--check]",
         padCommand},
        {"webinfo", "webinfo -c COMPANY -p PROGRAM", webinfoCommand},
        {"verify", "verify -c COMPANY -p PROGRAM [-o FILE]", verifyCommand},
        {"check", "check -c COMPANY -p PROGRAM [--format 1.15|3.11|4.0] [--json] [--no-spelling]",
         checkCommand},
        {"import", "import FILE...", importCommand},
        {"release",
         "release -c COMPANY -p PROGRAM --version V --file DIST [--file DIST2 ...] [--date "
         "YYYY-MM-DD] [--changes TEXT] [--out DIR] [--dry-run] [--verify-urls]",
         releaseCommand},
        {"export", "export --format appstream|winget|jsonld -c COMPANY -p PROGRAM [-o FILE|DIR]",
         exportCommand},
        {"keywords", "keywords (URL | --file FILE)", keywordsCommand},
        {"sites", "sites (URL | --file FILE)", sitesCommand},
        {"encipher-sites", "encipher-sites  < plain name|url lines", encipherSitesCommand},
    };
    return commands;
}

} // namespace brevaro::cli
