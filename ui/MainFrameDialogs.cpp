// The commands that ask in a dialog of their own.

#include "ui/MainFrame.h"

void MainFrame::replaceInTagnames() {}

void MainFrame::editRegister() {}

void MainFrame::editSettings() {}
