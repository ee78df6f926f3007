# SPDX-License-Identifier: MIT
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
import check_bus  # noqa: E402

USER = '/// Id of the user; valid until the next call.\ninline constexpr Service<None, const std::string> User{"TRV_S_USER"};\n'


def contract(*texts):
    """What the check says of these texts, taken as headers of the contract."""
    return list(check_bus.contract_breaches([(f"{index}.h", text) for index, text in enumerate(texts)]))


def use(text, path="host/a.cpp"):
    return list(check_bus.use_breaches([(path, text)]))


class Contract(unittest.TestCase):
    def test_a_documented_name_is_fine(self):
        self.assertEqual(contract(USER), [])
        self.assertEqual(contract('/// It goes.\ninline constexpr Event<None> Logout{"TRV_E_LOGOUT"};\n'), [])
        self.assertEqual(contract('inline constexpr ClickEvent Click{\n    "TRV_MAP_CLICK"};  ///< ships;\n   ///< the id\n'), [])
        self.assertEqual(contract('const std::string name = "TRV_MAP_LCLICK_" + type;'), [])

    def test_a_name_without_a_docstring(self):
        self.assertEqual(contract('// Later.\n\ninline constexpr Event<None> Logout{"TRV_E_LOGOUT"};\n'),
                         ["0.h: Logout has no docstring"])

    def test_an_answer_without_an_owner(self):
        self.assertIn("whose the answer is", contract(USER.replace("valid until the next call", "never null"))[0])
        self.assertEqual(contract(USER.replace("const std::string>", "None>").replace("valid", "kept")), [])

    def test_two_constants_of_one_name(self):
        self.assertEqual(contract(USER, USER.replace("User{", "Person{")), ["1.h: Person and User are both TRV_S_USER"])

    def test_a_constant_that_cannot_be_read_is_told(self):
        self.assertIn("can read", contract('static const Service<None, None> kLogin = {"TRV_S_LOGIN"};')[0])


class Use(unittest.TestCase):
    def test_names_written_out(self):
        self.assertIn('"TRV_S_USER" is written out', use('bus->CallTrvService("TRV_S_USER", nullptr);')[0])

    def test_comments_and_other_texts_are_none(self):
        self.assertEqual(use('// "TRV_S_USER"\nTrvLoadString(u"TRV_Shipping"); f("TRV_SERVICE"); g("ask TRV_S_USER");'), [])

    def test_private_headers_are_the_sdks_own(self):
        include = '#include "tarvik/src/core/BusTesting.h"\n'
        self.assertIn("only the SDK and tests", use(include)[0])
        self.assertEqual(use(include, "tarvik/src/core/TObject.cpp"), [])


if __name__ == "__main__":
    unittest.main()
