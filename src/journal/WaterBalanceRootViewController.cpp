#include "journal/WaterBalanceRootViewController.h"
