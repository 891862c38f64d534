"""The gallery: every widget at work, to look at and to copy from.

Open it in the editor's Python console:

    import unreal
    unreal.VelmoraData.launch_velmora_tool("VelmoraGallery/VelmoraGallery.json")
"""
