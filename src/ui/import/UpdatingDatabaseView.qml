import QtQuick
import Kesto

WaitPage {
    required property UpdatingDatabaseViewController controller

    text: controller.text
    picture: controller.backgroundImage
}
