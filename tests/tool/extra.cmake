# The tool tests run the built program as a user would.
if(TARGET netloom_tool)
  add_dependencies(test_tool netloom_tool)
  target_compile_definitions(test_tool PRIVATE NETLOOM_TOOL_PATH="$<TARGET_FILE:netloom_tool>")
endif()
