#include "session/TSNotificationCenter.h"

TSNotificationCenter *TSNotificationCenter::defaultCenter()
{
    return TSCurrentInstance<TSNotificationCenter>::get();
}
