#include "differs.h"
#define RECORD_StatisticalHostCommand_Info struct host_command
#define FURTHER_StatisticalHostCommand_Info SHOW(reads) SHOW(writes)
#define MEMBER_StatisticalShuuhen_panel display_panel
