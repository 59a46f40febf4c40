# The program's own font: Liberation Sans 2.x (SIL Open Font License 1.1, metric-compatible
# with the classic font), Regular and Bold taken unmodified from Debian's fonts-liberation2 at
# build time and built in as a resource (platform/bundled_fonts). Its licence goes into the
# package beside the program (cmake/package.cmake). Elsewhere, point UMBRAKIT_FONT_DIR at the
# two files; a build without them fits the captions into the system's fonts alone.
# The files are stored uncompressed: inflating them took some 13 million instructions at every
# start, a tenth of the start-up, to save 450 KB of the program's size.
set(UMBRAKIT_FONT_DIR /usr/share/fonts/truetype/liberation2 CACHE PATH
    "Folder holding LiberationSans-Regular.ttf and LiberationSans-Bold.ttf (version 2.x)")
set(font_entries "")
set(UMBRAKIT_BUNDLED_FONT ON)
foreach(face LiberationSans-Regular.ttf LiberationSans-Bold.ttf)
    if(EXISTS "${UMBRAKIT_FONT_DIR}/${face}")
        string(APPEND font_entries "        <file alias=\"${face}\" compress-algo=\"none\">${UMBRAKIT_FONT_DIR}/${face}</file>\n")
    else()
        set(UMBRAKIT_BUNDLED_FONT OFF)
    endif()
endforeach()
if(NOT UMBRAKIT_BUNDLED_FONT)
    set(font_entries "")
    set(hint "${UMBRAKIT_FONT_DIR} lacks LiberationSans-Regular.ttf or -Bold.ttf")
    if(UNIX AND NOT APPLE)
        message(FATAL_ERROR "${hint}: install fonts-liberation2 (tools/install-deps)")
    endif()
    message(WARNING "${hint}: building without the program's own font")
endif()
file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/umbrakit_fonts.qrc CONTENT
    "<RCC>\n    <qresource prefix=\"/umbrakit/fonts\">\n${font_entries}    </qresource>\n</RCC>\n")
target_sources(umbrakit_gui PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/umbrakit_fonts.qrc)

# Every caption checked under one font family at a time: fontconfig is given only that
# family's folder, so it is the system's whole choice (label "fonts").
if(TARGET caption_fit_qtest AND UMBRAKIT_BUNDLED_FONT)
    target_compile_definitions(caption_fit_qtest PRIVATE UMBRAKIT_BUNDLED_FONT)
endif()
if(BUILD_TESTING AND UNIX AND NOT APPLE)
    set(fit_families
        "DejaVu Sans|dejavu|/usr/share/fonts/truetype/dejavu"
        "Noto Sans|noto|/usr/share/fonts/truetype/noto"
        "Liberation Sans|liberation|/usr/share/fonts/truetype/liberation2"
        "Cantarell|cantarell|/usr/share/fonts/opentype/cantarell")
    foreach(entry ${fit_families})
        string(REPLACE "|" ";" entry "${entry}")
        list(GET entry 0 family)
        list(GET entry 1 tag)
        list(GET entry 2 folder)
        set(config ${CMAKE_CURRENT_BINARY_DIR}/fonts/${tag}/fonts.conf)
        file(CONFIGURE OUTPUT ${config} CONTENT "<?xml version=\"1.0\"?>
<!DOCTYPE fontconfig SYSTEM \"urn:fontconfig:fonts.dtd\">
<fontconfig>
    <dir>${folder}</dir>
    <alias><family>sans-serif</family><prefer><family>${family}</family></prefer></alias>
    <match target=\"pattern\">
        <edit name=\"family\" mode=\"append_last\"><string>${family}</string></edit>
    </match>
    <cachedir>${CMAKE_CURRENT_BINARY_DIR}/fonts/${tag}/cache</cachedir>
</fontconfig>
")
        # At 100% and at 200%, where text is laid out unhinted and may run wider.
        foreach(scale 1 2)
            set(name caption_fit_${tag})
            if(scale EQUAL 2)
                set(name caption_fit_${tag}_200)
            endif()
            add_test(NAME ${name} COMMAND caption_fit_qtest)
            set_tests_properties(${name} PROPERTIES LABELS fonts ENVIRONMENT
                "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=${scale};FONTCONFIG_FILE=${config};CAPTION_FIT_FAMILY=${family}")
        endforeach()
    endforeach()
endif()
