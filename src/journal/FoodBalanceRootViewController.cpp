#include "journal/FoodBalanceRootViewController.h"
