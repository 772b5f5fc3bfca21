#include "app/AppDelegate.h"

namespace sargan {

void AppDelegate::sendRenumDivesNotification(const void* sender) {
    _desk.notifications.post(QStringLiteral("renumDives"), sender);
}

}  // namespace sargan
