import QtQuick
import Kesto

/*! The same with a check mark that says whether the day has the dish, and adds it. */
DishCell {}
