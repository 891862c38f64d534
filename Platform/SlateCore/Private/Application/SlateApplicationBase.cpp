#include "Application/SlateApplicationBase.h"

#include "Rendering/SlateRenderer.h"

FSlateApplicationBase* FSlateApplicationBase::CurrentBaseApplication = nullptr;

FSlateApplicationBase::FSlateApplicationBase()
{
	CurrentBaseApplication = this;
}

FSlateApplicationBase::~FSlateApplicationBase()
{
	CurrentBaseApplication = nullptr;
}
