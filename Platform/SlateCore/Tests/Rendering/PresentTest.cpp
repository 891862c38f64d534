#include "Brushes/SlateColorBrush.h"
#include "GenericPlatform/GenericApplication.h"
#include "RenderCanvas.h"

#include <gtest/gtest.h>

namespace
{

/** Keeps what was presented last. */
class FPresentedWindow final : public FGenericWindow
{
public:
	virtual void ReshapeWindow(int32, int32, int32, int32) override {}
	virtual void MoveWindowTo(int32, int32) override {}
	virtual void BringToFront(bool) override {}
	virtual void Destroy() override {}
	virtual void Minimize() override {}
	virtual void Maximize() override {}
	virtual void Restore() override {}
	virtual void Show() override {}
	virtual void Hide() override {}
	virtual bool IsMaximized() const override { return false; }
	virtual bool IsMinimized() const override { return false; }
	virtual bool IsVisible() const override { return true; }
	virtual bool GetRestoredDimensions(int32&, int32&, int32&, int32&) override { return false; }
	virtual FIntRect GetClientRect() const override { return FIntRect(); }
	virtual void SetWindowFocus() override {}
	virtual void SetOpacity(const float) override {}
	virtual bool IsPointInWindow(int32, int32) const override { return false; }
	virtual bool IsForegroundWindow() const override { return false; }
	virtual void SetText(const TCHAR* const) override {}
	virtual float GetDPIScaleFactor() const override { return 1.0f; }
	virtual void SetDPIScaleFactor(const float) override {}
	virtual void* GetOSWindowHandle() const override { return nullptr; }
	virtual void PresentPixels(
		const uint8* Bgra, int32 Width, int32 Height, int32 Stride, const TArray<FIntRect>& InDamage) override
	{
		Size = FIntPoint(Width, Height);
		Damage = InDamage;
		++NumPresented;
		FMemory::Memcpy(FirstPixel, Bgra, 4);
	}

	FIntPoint Size = FIntPoint::ZeroValue;
	TArray<FIntRect> Damage;
	uint8 FirstPixel[4] = {};
	int32 NumPresented = 0;
};

}

TEST(Present, TheWindowGetsBgraBytesAndTheDamageCutAtIt)
{
	const TSharedRef<FSlateRenderer> Renderer = FSlateRenderer::Create();
	const TSharedRef<FPresentedWindow> Native = MakeShared<FPresentedWindow>();
	SWindow* const Window = reinterpret_cast<SWindow*>(&Native.Get());
	Renderer->CreateViewport(Window, Native, FIntPoint(30, 20));

	FSlateWindowElementList& List = Renderer->GetDrawBuffer().AddWindowElementList(Window);
	const FSlateColorBrush Brush(FLinearColor::White);
	FSlateDrawElement::MakeBox(
		List, 0, MakeGeometry(0, 0, 30, 20), &Brush, ESlateDrawEffect::None, FLinearColor(FColor(1, 2, 3)));
	List.AddDamage(FSlateRect(-5.0f, -5.0f, 10.5f, 10.0f));
	Renderer->DrawWindows(Renderer->GetDrawBuffer());

	EXPECT_EQ(Native->Size, FIntPoint(30, 20));
	EXPECT_EQ(Native->Damage, TArray<FIntRect>({FIntRect(0, 0, 11, 10)}));
	EXPECT_EQ(Native->FirstPixel[0], 3);
	EXPECT_EQ(Native->FirstPixel[1], 2);
	EXPECT_EQ(Native->FirstPixel[2], 1);
	EXPECT_EQ(Native->FirstPixel[3], 255);

	Renderer->GetDrawBuffer().ClearBuffer();
	Renderer->GetDrawBuffer().AddWindowElementList(Window);
	Renderer->DrawWindows(Renderer->GetDrawBuffer());
	EXPECT_EQ(Native->NumPresented, 1);

	Renderer->RequestResize(Window, FIntPoint(40, 10));
	TArray<FColor> Pixels;
	FIntPoint Size = FIntPoint::ZeroValue;
	EXPECT_TRUE(Renderer->ReadPixels(Window, Pixels, Size));
	EXPECT_EQ(Size, FIntPoint(40, 10));
	EXPECT_EQ(Pixels[0], FColor(0, 0, 0));
	Renderer->OnWindowDestroyed(Window);
	EXPECT_FALSE(Renderer->ReadPixels(Window, Pixels, Size));
}
