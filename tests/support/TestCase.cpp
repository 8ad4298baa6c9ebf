#include "support/TestCase.h"
