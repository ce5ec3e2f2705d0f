#pragma once

/// Has the folding signs of trees drawn as plain arrows, for as long as the program runs.
/// To be called once, before the first window is created.
void drawExpandersPlainly();
