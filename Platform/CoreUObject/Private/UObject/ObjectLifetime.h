#pragma once

class UObject;

/** Destroys what the object is, leaving its memory. BeginDestroy and FinishDestroy have been called. */
void DestructObject(UObject* Object);
