// The window program's answer to MsgBox: a modal message dialog.
#pragma once

#include "base/MsgBox.h"

MsgAnswer MsgBox_DialogHandler(const MsgRequest& request);
