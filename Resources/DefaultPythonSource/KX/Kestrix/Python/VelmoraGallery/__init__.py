"""The gallery: every widget at work, to look at and to copy from.

Open it in a script, or in the Python console of the engine's editor:

    import unreal
    unreal.VelmoraData.launch_velmora_tool("VelmoraGallery/VelmoraGallery.json")
"""
