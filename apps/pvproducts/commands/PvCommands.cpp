#include "PvToolContext.h"

PvCommand pvListCommand();
PvCommand pvShowCommand();
PvCommand pvFindCommand();
PvCommand pvGroupsCommand();
PvCommand pvClosestCommand();
PvCommand pvLegacyCommand();
PvCommand pvCategoryCommand();
PvCommand pvSpiralCommand();
PvCommand pvLintCommand();
PvCommand pvDrawCommand();
PvCommand pvReportCommand();

QList<PvCommand> pvCommands()
{
    return { pvListCommand(), pvShowCommand(), pvFindCommand(), pvGroupsCommand(), pvClosestCommand(),
             pvLegacyCommand(), pvCategoryCommand(), pvSpiralCommand(), pvLintCommand(),
             pvDrawCommand(), pvReportCommand() };
}
