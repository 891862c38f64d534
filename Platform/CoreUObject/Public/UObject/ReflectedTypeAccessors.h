#pragma once

class UClass;
class UEnum;
class UScriptStruct;

/** The reflection of an enumeration; the header tool specialises it for each UENUM. */
template <typename EnumType>
UEnum* StaticEnum();

template <typename StructType>
UScriptStruct* StaticStruct()
{
	return StructType::StaticStruct();
}

template <typename ClassType>
UClass* StaticClass()
{
	return ClassType::StaticClass();
}
