#pragma once

#include "ui/Rgb.h"

/// The contrast of two colours, from 1 (none) to 21 (black and white), as web pages are judged by.
double contrast(Rgb one, Rgb other);
