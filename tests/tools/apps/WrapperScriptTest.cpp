#include "tools/apps/WrapperScript.h"

#include <gtest/gtest.h>

namespace orlen {

TEST(WrapperScriptTest, tellsTheProgramItHandsOverTo)
{
    struct Case {
        const char* name;
        const char* text;
        const char* target;
    };
    constexpr Case cases[] = {
        {"exec", "#!/bin/sh\nexec /opt/foo/foo \"$@\"\n", "/opt/foo/foo"},
        {"quotes and home", "#!/bin/bash\n# starts it\nexec \"$HOME/My Apps/foo\" --flag\n",
         "/h/My Apps/foo"},
        {"tilde", "#!/bin/sh\nexec ~/Apps/foo\n", "/h/Apps/foo"},
        {"own variable", "#!/bin/sh\nAPP=${HOME}/opt\nexport X=1\nexec -a foo \"${APP}/foo\"\n",
         "/h/opt/foo"},
        {"env", "#!/bin/sh\nexec env A=1 B=2 /opt/foo\n", "/opt/foo"},
        {"last command", "#!/bin/sh\ncd /tmp\n/opt/foo \"$@\"", "/opt/foo"},
        {"more than a program", "#!/bin/sh\n/opt/foo\necho done\n", ""},
        {"unknown variable", "#!/bin/sh\nexec \"$(dirname \"$0\")/foo\"\n", ""},
        {"default of a variable", "#!/bin/sh\nexec ${HOME:-/x}/foo\n", ""},
        {"single quotes", "#!/bin/sh\nexec '$HOME/foo'\n", ""},
        {"bare name", "#!/bin/sh\nexec foo\n", ""},
        {"no script", "exec /opt/foo\n", ""},
        {"cut short", "#!/bin/sh\nexec \"${", ""},
        {"ends in env", "#!/bin/sh\nexec env A=1", ""},
        {"empty", "", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(WrapperScript::targetIn(c.text, "/h"), c.target);
    }
}

TEST(WrapperScriptTest, aVariableDoesNotGrowWithoutEnd)
{
    std::string text = "#!/bin/sh\nA=/opt\n";
    for (int line = 0; line < 200; ++line)
        text += "A=$A$A\n";
    EXPECT_EQ(WrapperScript::targetIn(text + "exec $A\n", "/h"), "");
}

} // namespace orlen
