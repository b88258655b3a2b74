#include "session/TSNotificationCenter.h"

#include "session/TSCurrentInstance.h"

TSNotificationCenter::TSNotificationCenter()
{
    TSCurrentInstance<TSNotificationCenter>::enter(this);
}

TSNotificationCenter::~TSNotificationCenter()
{
    TSCurrentInstance<TSNotificationCenter>::leave(this);
}

TSNotificationCenter *TSNotificationCenter::defaultCenter()
{
    return TSCurrentInstance<TSNotificationCenter>::get();
}
