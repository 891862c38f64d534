#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/**
 * The .uplugin files below a folder, in alphabetical order. The search does not go below a folder that holds one; it follows links,
 * but visits each folder once, so that no circle of links holds it up.
 */
TArray<FString> FindPluginDescriptors(const FString& Directory);
