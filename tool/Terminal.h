#pragma once

/// True when a person sees standard output at once.
bool outputIsTerminal();

/// Lets bytes pass through the standard streams as they are. Until the program ends, a terminal takes them for UTF-8.
/// What is written has to be flushed.
void passBytesThrough();
