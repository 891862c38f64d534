#include "Velmora/SVelmoraWidget.h"

#include "Velmora/VelmoraGenerator.h"

void SVelmoraWidget::Construct(const FArguments& InArgs)
{
	JsonPath = InArgs._JsonPath;
	DataObj = InArgs._DataObj;
	ChildSlot[GenerateWidgetFromFile(JsonPath, TEXT("Root"), this)];
}
