#include "journal/JornalSheduleRootViewController.h"
