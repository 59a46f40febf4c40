# The user's guide's pictures (label "docs"): tools/screenshots runs against the built program
# on an Xvfb display of its own, into a temporary folder, and every picture the guide shows
# must come out at its window's size. It needs Xvfb, xdotool and ImageMagick from
# tools/install-deps.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    add_test(NAME docs_screenshots
        COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tests/docs/screenshots_test.sh
            $<TARGET_FILE:umbrakit> ${CMAKE_CURRENT_SOURCE_DIR})
    set_tests_properties(docs_screenshots PROPERTIES LABELS docs TIMEOUT 300)
endif()
