#pragma once

class SWidget;

/**
 * Whether the window of a widget is shown within another one, as while a picture is taken in another size. The room that there is then
 * says nothing about the widget's own.
 */
bool IsWithinForeignWindow(const SWidget& Widget);
